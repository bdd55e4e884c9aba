#pragma once

#include <string>

/// Lets one call of the system fail, as the system really might: the n-th of those that what is
/// linked statically makes from this process. A target that uses it links `zarvil_failing_calls`.
namespace zarvil::failing {

/// Different errors of one call that a system has; which one is a number from zero on.
inline constexpr int errorsOfACall = 4;

/// From now on the n-th call fails, counted from one, with one of its errors.
void arm(int call, int error);
/// No call fails any more. The name and the error of the one that did; empty when none was reached.
std::string disarm();

} // namespace zarvil::failing
