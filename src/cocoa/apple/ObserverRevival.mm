#import "cocoa/messages/ObserverRevival.h"

namespace zarvil::cocoa {

/// The system's center outlives every process and forgets nobody.
struct ObserverRevival::Watch {};

ObserverRevival::ObserverRevival(std::function<void()> /*addAgain*/) {}

ObserverRevival::~ObserverRevival() = default;

} // namespace zarvil::cocoa
