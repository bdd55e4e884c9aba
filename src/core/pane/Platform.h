#pragma once

#include "platform/Authorization.h"
#include "platform/Clock.h"
#include "platform/ErrorPresenter.h"
#include "platform/FileManager.h"
#include "platform/ModalLoop.h"
#include "platform/MouseParameters.h"
#include "platform/ProcessControl.h"
#include "platform/ScriptRunner.h"
#include "platform/StringTable.h"
#include "platform/Timers.h"
#include "platform/UserDefaults.h"
#include "platform/Workspace.h"
#include "protocol/MessageCenter.h"

#include <string>

namespace zarvil {

/// All that the pane asks of its surroundings. Nothing is owned; all must outlive the pane.
struct Platform {
    MessageCenter& messages;
    Timers& timers;
    Clock& clock;
    Workspace& workspace;
    FileManager& files;
    UserDefaults& defaults;
    ErrorPresenter& errors;
    ScriptRunner& scripts;
    Authorization& authorization;
    StringTable& strings;
    MouseParameters& mouse;
    ModalLoop& modal;
    ProcessControl& processes;
    /// Put before the absolute product paths; empty for the real ones.
    std::string root;
};

} // namespace zarvil
