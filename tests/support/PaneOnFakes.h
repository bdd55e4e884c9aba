#pragma once

#include "Fakes.h"
#include "pane/Zarvil_Preferences.h"
#include "protocol/InProcessMessageCenter.h"

namespace zarvil {

/// One pane on fake ports and an in-process bus, not yet loaded.
struct PaneOnFakes {
    InProcessMessageCenter bus;
    fake::VirtualTime time;
    fake::Workspace workspace;
    fake::FileManager files;
    fake::UserDefaults defaults;
    fake::ErrorPresenter errors;
    fake::ScriptRunner scriptRunner;
    fake::Authorization authorization;
    fake::StringTable strings;
    fake::MouseParameters mouse;
    fake::ModalLoop modal;
    fake::ProcessControl processes;
    Platform platform{bus,          time,          time,    workspace, files, defaults,  errors,
                      scriptRunner, authorization, strings, mouse,     modal, processes, ""};
    Zarvil_Preferences pane{platform};
};

} // namespace zarvil
