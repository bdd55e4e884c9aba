#pragma once

#include "devices/DeviceList.h"
#include "devices/ZVCollectionItem.h"
#include "interface/NotificationCenter.h"
#include "pane/Guidance.h"
#include "pane/Outlets.h"
#include "pane/Platform.h"
#include "scripts/ScriptTexts.h"
#include "scripts/ZVScriptCollectionItem.h"

#include <memory>
#include <string>
#include <unordered_set>
#include <vector>

namespace zarvil {

/// What the host may do with a pane that it asks to give way.
enum class UnselectReply : int { Cancel = 0, Now = 1, Later = 2 };

/// The pane's controller: mirrors the agent's settings on its outlets and sends every change back
/// at once. It keeps no settings; whatever it shows came from the agent or from the user.
///
/// Everything runs on the main thread: the host's callbacks, the actions, the timers and the
/// agent's messages, of which none begins while another one runs. Methods bear the first keyword of
/// their wire names, misspellings included; `performAction` reaches the actions by the whole name.
class Zarvil_Preferences final : public Outlets,
                                 public ActionTarget,
                                 public CollectionViewDelegate,
                                 public DeviceStateDelegate,
                                 public ScriptOwner {
public:
    /// The ports must outlive the pane.
    explicit Zarvil_Preferences(Platform& platform);
    ~Zarvil_Preferences() override;

    // Life within the host.
    void mainViewDidLoad();
    void willSelect();
    UnselectReply shouldUnselect();
    void willUnselect();
    void didUnselect();
    [[nodiscard]] bool isUnlocked() const;
    void setInterfaceEnabled(bool enabled);
    /// A transient tip window, closed when the pane is left; not owned.
    void setTtip(Panel* tip) { ttip = tip; }

    // Actions and handlers by wire name.
    void performAction(std::string_view action, Control* sender) override;
    /// The same for the handlers of agent messages.
    void performHandler(std::string_view handler, const Message* message);
    [[nodiscard]] static std::vector<std::string_view> actionNames();

    // Presence of the agent and its protection.
    void appStatus();
    void appDidAnswer(const Message* message);
    void appDidNotAnswer();
    void launchApp(Control* sender);
    void quitApp(Control* sender);
    void toggleOnOff(Control* sender);
    void stateChanged(const Message* message);
    void quitePrefs(const Message* message);

    // General settings.
    void setupPrefs(const Message* message);
    void toggleShowIcon(Control* sender);
    void toggleMonoIcon(Control* sender);
    void toggleForceQuit(Control* sender);
    void setShouldLaunchAtLogin(Control* sender);
    void showFailNotifi(Control* sender);
    void autoUpdates(Control* sender);
    void toggleShowConnectedMessage(Control* sender);
    void toggleShowShutdownMessage(Control* sender);
    void setShutdownDelay(Control* sender);
    void toggleMinutesSeconds(Control* sender);
    void testShutdown(Control* sender);
    void testFinished(const Message* message);

    // Devices.
    void deviceConnected(const Message* message);
    void deviceDisconnected(const Message* message);
    void allSavedDevices(const Message* message);
    void allConnectedDevices(const Message* message);
    void allDevices(const Message* message);
    void newSavedDevice(const Message* message);
    void stateDidChange(ZVCollectionItem& item) override;

    // E-mail and Pushover alerts.
    [[nodiscard]] static bool validEmail(std::string_view address);
    void setUserEmail(Control* sender);
    void useEmailNotifications(Control* sender);
    void usePushoverAction(Control* sender);
    void setUserId(Control* sender);
    void setDeviceId(Control* sender);
    void validatePushover(Control* sender);
    void goToPushover(Control* sender);
    void pushValidationFinished(const Message* message);

    // Scripts.
    void loadScripts();
    void unloadScripts();
    void create(Control* sender);
    void removeScript(const Record& record) override;
    void scriptFilesWillChange() override { scriptTexts_.readAll(); }
    [[nodiscard]] bool hasAnotherScriptOfFile(std::string_view title,
                                              const Record& script) const override;
    [[nodiscard]] bool admitsRemoval() override;
    void useScripts(Control* sender);
    void scriptsTitleChanged(TextField& field);
    void updateNewScriptsTitle(Control* sender);
    [[nodiscard]] const std::optional<std::string>& newScriptTitleVal() const {
        return newScriptTitleVal_;
    }
    void setNewScriptTitleVal(std::optional<std::string> title);

    // Maintenance.
    void unistallAction(Control* sender);
    void unistall(Control* sender);
    void uninstallSheetFinished(Control* sender);
    void viewLog(Control* sender);
    /// "checkForUpdates:"; the plain name is the check box's.
    void checkForUpdatesNowAction(Control* sender);
    void setCheckForUpdatesAutomatically(Control* sender);
    void openLink(Control* sender);
    void support(Control* sender);
    void fbLike(Control* sender);
    void tweet(Control* sender);
    void feedback(Control* sender);

    /// What is said of all this beside the outlets.
    Guidance guidance;

    // State shared by the concerns.
    std::string appId;
    /// The agent is not known to answer.
    bool lostConnection = true;
    /// The agent's protection is on.
    bool state = false;
    /// The agent runs a test shutdown.
    bool testing = false;
    /// Known devices; nothing adds to it, so a look-up always misses. Kept on purpose.
    std::vector<Record> devices;
    /// Every device reported as connected, saved or not.
    [[nodiscard]] const DeviceList& connectedDeviceList() const { return allConnectedDevices_; }

private:
    using Action = void (Zarvil_Preferences::*)(Control*);
    using MessageHandler = void (Zarvil_Preferences::*)(const Message*);
    struct NamedAction {
        std::string_view name;
        Action method;
    };
    struct NamedHandler {
        std::string_view message;
        std::string_view name;
        MessageHandler method;
    };
    static const std::vector<NamedAction>& actions();
    static const std::vector<NamedHandler>& handlers();

    void registerForAgentMessages();
    void handle(MessageHandler method, const Message& message);
    void linkChanged(LinkEvent event);
    void setUpAuthorization();
    void clickLock();
    void checkAuthorization(Interaction interaction);
    void closeTip();
    [[nodiscard]] std::string agentApplicationPath() const;
    void post(std::string_view name);
    void postSetting(std::string_view key, Value value);
    /// Sends a toggle's state; a sender without a state sends nothing.
    void postState(std::string_view key, Control* sender);
    /// Sends a field's text; an empty one is never sent.
    void postText(std::string_view key, Control* sender);
    void emptyDeviceLists();

    void showLaunchButton(std::string_view title, std::string_view action);
    void restoreDelayUnit();
    void setUpDelayField();
    void setPushoverEnabled(bool effective);
    void setPushoverFieldsEnabled(bool enabled);
    void showSavedDelay(const Dictionary& settings);
    void showSavedPushover(const Dictionary& settings);
    void showSavedEmail(const Dictionary& settings);
    void showSavedScripts(const Dictionary& settings);

    void addDevice(const Record& record);
    void removeDevice(const Dictionary& device);
    void moveDevice(const Record& record, bool watch);
    void addSavedDevice(const Record& record);
    /// Whether an unsaved device goes back to the list of connected devices.
    [[nodiscard]] bool staysConnected(const Dictionary& device) const;

    void resetUserAndDeviceSettings();

    [[nodiscard]] bool scriptExists(std::string_view title) const;
    void listScript(const Record& record);
    void handToItem(const Record& record);
    void scriptItemWasMade(CollectionViewItem& item);
    void keepDrafts();
    void resumeDrafts();
    bool resumeDraft(const ScriptDraft& draft, std::optional<std::size_t> index);
    /// Says why "Create" is greyed where the title alone does not.
    void showTitleFault();

    void expectAnswer(double seconds);
    /// False when the host is not among the running applications.
    bool killHost();
    void openURL(std::string_view url);

    Platform& platform_;
    DeviceList allConnectedDevices_;
    ScriptTexts scriptTexts_;
    NotificationCenter textChanges_;
    Panel* ttip = nullptr;
    std::unique_ptr<Timer> appTimer;
    std::unique_ptr<Timer> appOfflineTimer;
    std::optional<std::string> newScriptTitleVal_;
    /// Listed scripts whose own items do not get them when they are made.
    std::unordered_set<const MutableRecord*> sameTitledScripts_;
    /// While no scripts are listed.
    std::vector<ScriptDraft> scriptDrafts_;
    std::optional<double> lastRemoval_; ///< by a press, as the clock tells
    std::vector<Subscription> agentMessages_;
    Subscription link_;
    std::shared_ptr<char> lifetime_ = std::make_shared<char>();
};

} // namespace zarvil
