#include "qt/adapters/QtClock.h"

#include <QDateTime>

namespace zarvil {

namespace {

/// The start of 2001 after the start of 1970, both UTC, in milliseconds.
constexpr qint64 referenceDate = 978'307'200'000;

} // namespace

double QtClock::timeIntervalSinceReferenceDate() const {
    return static_cast<double>(QDateTime::currentMSecsSinceEpoch() - referenceDate) / 1000;
}

} // namespace zarvil
