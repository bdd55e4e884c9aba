#include "pane/Help.h"

#include <array>
#include <span>

namespace zarvil {

namespace {

/// The keys of the texts. A "%1" in one stands for the scripts' folder.
struct SectionKeys {
    std::string_view heading;
    std::string_view text;
};

constexpr std::array devicesHelp{
    SectionKeys{"What happens when the power fails",
                "When a watched device reports a power failure, Zarvil warns you, runs your "
                "scripts, sends the alerts that you have chosen and, after the delay, shuts the "
                "computer down. You choose each of these in the other tabs."},
    SectionKeys{"Choosing devices",
                "Connect a power supply with its data cable. It appears under Connected. Tick it, "
                "and it moves to Watched. Untick it, and Zarvil no longer watches it."},
    SectionKeys{"If no device appears",
                "Devices are listed while Zarvil runs. Launch it with the button above the tabs. "
                "A power supply without a data cable cannot be watched."},
};

constexpr std::array generalHelp{
    SectionKeys{"The delay",
                "This much time passes between the power failure and the shutdown. Choose seconds "
                "or minutes with the switch, type a number and press Return. With 0 the computer "
                "is shut down at once."},
    SectionKeys{"What a test does",
                "Zarvil goes through the shutdown as if the power had failed, and stops before the "
                "computer would be shut down. The protection must be on for a test."},
    SectionKeys{"Quitting applications by force",
                "Applications that ask whether to save can hold a shutdown up until the battery is "
                "empty. By force they are ended without asking, and what was not saved is lost."},
    SectionKeys{"If the protection is off",
                "Zarvil goes on running and shows your devices, but does nothing when the power "
                "fails. Switch it on with the switch at the top."},
};

constexpr std::array alertsHelp{
    SectionKeys{"Alerts by e-mail",
                "Zarvil sends a message to the address when the power fails. Type the whole "
                "address and press Return; an incomplete one is not stored."},
    SectionKeys{"Alerts through Pushover",
                "Pushover is a service that brings messages to your phone. You need an account "
                "there; its user ID goes into the first field. With a device ID only that device "
                "gets the message, otherwise all of yours."},
    SectionKeys{"Trying Pushover out",
                "Send a Test sends a message at once and tells you whether it went out. IDs that "
                "Pushover does not know are cleared and have to be typed again."},
    SectionKeys{"Keep the network up",
                "An alert reaches you only if your router and modem still have power, so connect "
                "them to the power supply too."},
};

constexpr std::array scriptsHelp{
    SectionKeys{"What scripts are for",
                "Zarvil runs them when the power fails, before it shuts the computer down: to save "
                "your work, for example, or to stop a server in order."},
    SectionKeys{"Where scripts lie",
                "Each script is a file of its own in the folder %1, named after its title with the "
                "ending .zvscript. Copy that folder to keep them safe."},
    SectionKeys{"Writing a script",
                "Type a title, press Create, then Edit. A text that begins with #! is run by the "
                "program named in that line, any other by the shell. Done saves it."},
    SectionKeys{"Trying a script out",
                "Run starts the script at once, without a power failure, and does all that it "
                "says. If it fails, its exit status and its last error are shown."},
};

constexpr std::array aboutHelp{
    SectionKeys{"The log",
                "Zarvil writes down what it does and when: power failures, shutdowns and alerts. "
                "Look there first if something went otherwise than you expected."},
    SectionKeys{"New versions",
                "Zarvil looks for new versions itself, at your word or by itself, and tells you "
                "what it has found."},
    SectionKeys{"Uninstalling Zarvil",
                "Removes Zarvil, this pane and the settings, after it has asked you. Your scripts "
                "stay in the folder %1."},
    SectionKeys{"Administrator rights",
                "The lock below the tabs shows whether your account may administer this computer. "
                "No setting here needs it to be open."},
};

struct PageKeys {
    std::string_view title;
    std::span<const SectionKeys> sections;
};

/// In the order of `Tab`.
constexpr std::array pages{
    PageKeys{"Help: Devices", devicesHelp}, PageKeys{"Help: General", generalHelp},
    PageKeys{"Help: Alerts", alertsHelp},   PageKeys{"Help: Scripts", scriptsHelp},
    PageKeys{"Help: About", aboutHelp},
};

struct ControlKeys {
    std::string_view outlet;
    std::string_view text;
};

constexpr std::array controls{
    ControlKeys{"togglePowerButton",
                "Switches the protection. While it is off, Zarvil does nothing when the power "
                "fails. The choice takes effect at once."},
    ControlKeys{"launchButton",
                "Starts Zarvil, the program that watches the power, or ends it. While it does not "
                "run, nothing is watched and no setting can be changed."},
    ControlKeys{"shutdownDelayText",
                "The time between the power failure and the shutdown. Numbers of 0 or more are "
                "stored with Return; anything else leaves the last value as it is."},
    ControlKeys{"toggleMinSec",
                "Shows the delay in minutes or in seconds. The delay itself stays the same."},
    ControlKeys{"forceQuit",
                "Ends applications that do not quit by themselves, so that none of them can hold "
                "the shutdown up. What was not saved in them is lost."},
    ControlKeys{"testSettingsButton",
                "Goes through the shutdown as if the power had failed, and stops before the "
                "computer would be shut down."},
    ControlKeys{"hideShutdownMessageButton",
                "Shows whether the warning hides itself. You choose that in the warning, so it "
                "cannot be changed here."},
    ControlKeys{"pushUserName",
                "The key of your account at Pushover. You find it on Pushover's page once you have "
                "logged in."},
    ControlKeys{"pushDeviceName",
                "The name of one of your devices at Pushover. Leave it empty, and all of them get "
                "the message."},
    ControlKeys{"scriptsTitle",
                "The title of a new script. It becomes the name of the script's file, so that no "
                "two scripts can have the same one."},
    ControlKeys{"authView",
                "Shows whether your account may administer this computer. No setting here needs "
                "the lock to be open."},
    ControlKeys{"uninstallButton",
                "Asks first, then removes Zarvil, this pane and the settings. Your scripts are "
                "kept."},
};

} // namespace

HelpPage helpOf(Tab tab, std::string_view scriptsFolder, const StringTable& strings) {
    const PageKeys& keys = pages.at(static_cast<std::size_t>(tab));
    HelpPage page{strings.localizedString(keys.title), {}};
    page.sections.reserve(keys.sections.size());
    for (const auto& [heading, text] : keys.sections)
        page.sections.push_back(
            {strings.localizedString(heading), strings.localizedString(text, {scriptsFolder})});
    return page;
}

std::vector<ControlHelp> helpOfControls(const StringTable& strings) {
    std::vector<ControlHelp> help;
    help.reserve(controls.size());
    for (const auto& [outlet, text] : controls)
        help.push_back({outlet, strings.localizedString(text)});
    return help;
}

} // namespace zarvil
