#include "qt/adapters/QtPlatform.h"

#include <utility>

namespace zarvil {

QtPlatform::QtPlatform(Parts parts, std::string root)
    : parts_(std::move(parts)), platform_{*parts_.messages,  timers_,         clock_,
                                          workspace_,        *parts_.files,   defaults_,
                                          errors_,           *parts_.scripts, authorization_,
                                          strings_,          mouse_,          modal_,
                                          *parts_.processes, std::move(root)} {}

} // namespace zarvil
