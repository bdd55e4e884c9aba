#include "controls/KXButtonCell.h"

namespace zarvil {

KXButtonCell::KXButtonCell(const MouseParameters& /*mouse*/, const Clock& /*clock*/) {}

} // namespace zarvil
