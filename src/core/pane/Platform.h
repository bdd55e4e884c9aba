#pragma once

#include "platform/Authorization.h"
#include "platform/Error.h"
#include "platform/FileManager.h"
#include "platform/HandlerQueue.h"
#include "platform/ModalLoop.h"
#include "platform/Pointer.h"
#include "platform/ProcessControl.h"
#include "platform/ScriptRunner.h"
#include "platform/StringTable.h"
#include "platform/Time.h"
#include "platform/UserDefaults.h"
#include "platform/Workspace.h"
#include "protocol/MessageCenter.h"

#include <optional>
#include <string>

namespace zarvil {

/// All that the pane asks of its surroundings. Nothing is owned; all must outlive the pane.
struct Platform {
    /// Of this pane alone.
    HandlerQueue& handlers;
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
    /// The desktop's; nothing where it does not tell.
    std::optional<StickyClick> stickyClick;
    ModalLoop& modal;
    ProcessControl& processes;
    /// Put before the absolute product paths; empty for the real ones.
    std::string root;
    /// Between the whole and the fraction of a number, as the user writes it; in UTF-8.
    std::string decimalSeparator = ".";
};

} // namespace zarvil
