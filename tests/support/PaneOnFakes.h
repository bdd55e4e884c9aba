#pragma once

#include "Fakes.h"
#include "pane/Zarvil_Preferences.h"
#include "protocol/InProcessMessageCenter.h"

namespace zarvil {

/// One pane on fake ports and an in-process bus, not yet loaded.
struct PaneOnFakes {
    /// On the caller's file system, with the caller's scripts, if there are such.
    explicit PaneOnFakes(FileManager* onDisk = nullptr, ScriptRunner* running = nullptr)
        : disk(onDisk ? *onDisk : files),
          platform{handlers,      bus,       time,
                   time,          workspace, disk,
                   defaults,      errors,    running ? *running : scriptRunner,
                   authorization, strings,   {},
                   modal,         processes, ""} {}

    HandlerQueue handlers;
    InProcessMessageCenter bus;
    fake::VirtualTime time;
    fake::Workspace workspace;
    fake::FileManager files;
    fake::UserDefaults defaults;
    fake::ErrorPresenter errors;
    fake::ScriptRunner scriptRunner;
    fake::Authorization authorization;
    fake::StringTable strings;
    fake::ModalLoop modal;
    fake::ProcessControl processes;
    FileManager& disk;
    Platform platform;
    Zarvil_Preferences pane{platform};
};

} // namespace zarvil
