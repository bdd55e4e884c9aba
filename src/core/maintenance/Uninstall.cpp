#include "pane/Product.h"
#include "pane/Zarvil_Preferences.h"
#include "protocol/Messages.h"

namespace zarvil {

namespace {

/// One try; what is missing or protected stays without a word.
void removeQuietly(FileManager& files, const std::string& path) {
    static_cast<void>(files.removeItem(path));
}

} // namespace

void Zarvil_Preferences::unistallAction(Control* /*sender*/) {
    // An assistive program can press the button behind the panel; one question is enough.
    if (uninstallModal.isOnScreen())
        return;
    // Only what the panel's content draws is to be seen.
    uninstallModal.setOpaque(false);
    uninstallModal.setBackgroundColor(color::clear);
    uninstallModal.beginSheet();
    // The agent's messages go on while the user makes up his mind.
    platform_.handlers.letThroughDuring(
        [this] { platform_.modal.runModalForWindow(uninstallModal); });
    uninstallModal.endSheet();
    uninstallModal.orderOut();
}

// The agent is asked to quit but not waited for. The scripts stay: they are the user's own.
void Zarvil_Preferences::unistall(Control* /*sender*/) {
    const std::string library = platform_.files.expandingTilde("~/Library");
    post(message::quit);
    removeQuietly(platform_.files, agentApplicationPath());
    removeQuietly(platform_.files, library + std::string(product::paneBundle));
    removeQuietly(platform_.files, library + std::string(product::agentSettings));
    platform_.modal.stopModal();
    // A host that the session does not list, or that cannot be killed, is this process still: the
    // pane must not stay usable without its files.
    if (!killHost())
        platform_.processes.exit(0);
}

void Zarvil_Preferences::uninstallSheetFinished(Control* /*sender*/) {
    platform_.modal.stopModal();
}

} // namespace zarvil
