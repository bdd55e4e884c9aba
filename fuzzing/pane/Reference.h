#pragma once

#include "pane/Outlets.h"
#include "protocol/MessageCenter.h"

#include <deque>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace zarvil::fuzz {

/// The pane once more, as plainly as its rules can be put down: lists are walked from the front,
/// nothing is hashed, sorted or cached, and events that come during another wait in one queue. It
/// has outlets of its own, which must look as the pane's do after every step.
class Reference final : public Outlets, private ActionTarget {
public:
    /// What the pane asks its surroundings is only noted here; the folder of scripts is read where
    /// the pane's is.
    Reference(Platform& own, FileManager& files);

    // Events, in the order in which the pane meets them.
    void start();
    void receive(const Message& message);
    void receiveNothing(std::string_view handler);
    void linkChanged(LinkEvent event);
    void advance(double seconds);
    void setSelected(bool selected);
    /// Types a text; the end of the edit is the field's own affair.
    void edit(TextField& field, const std::string& text);
    void perform(std::string_view action);
    void tick(CollectionView& list, std::size_t index);
    void removeScript(std::size_t index);
    /// A script that runs until `scriptEnds` holds everything back.
    void runScript(bool succeeds, bool lasts);
    void scriptEnds(bool succeeds);

    bool lostConnection = true;
    bool state = false;
    bool testing = false;

    using Device = std::shared_ptr<const Dictionary>;
    struct Listed {
        Device device;
        unsigned long tick = 0;
    };
    std::vector<Listed> connected;
    std::vector<Listed> saved;
    std::vector<Device> allConnected;
    std::vector<std::string> scripts;

    std::vector<Message> sent;
    std::size_t launches = 0;
    std::size_t opened = 0;
    std::size_t exits = 0;
    std::size_t alerts = 0;
    bool isHostListed = false;
    [[nodiscard]] bool isHeld() const { return held_; }
    [[nodiscard]] bool isTimeoutPending() const { return timeoutDue_.has_value(); }

private:
    void performAction(std::string_view action, Control* sender) override;
    void act(const std::string& action, Control* sender);
    void handle(const std::string& name, const Message* message);
    void run(std::function<void()> call);
    void drain();

    void appStatus();
    void appDidAnswer();
    void appDidNotAnswer();
    void stateChanged(const Dictionary& info);
    void toggleOnOff(Control* sender);
    void setInterfaceEnabled(bool enabled);
    void setupPrefs(const Dictionary& info);
    void showShutdownMessageChanged();
    void sendDelay();
    void changeUnit();
    void usePushoverChanged();
    void checkPushover();
    void pushoverChecked(std::int64_t code);
    void enablePushover(bool enabled);
    void sendText(std::string_view key, const TextField& field);
    void loadScripts();
    void createScript();
    void useScriptsChanged();
    [[nodiscard]] bool hasScript(std::string_view title) const;
    void titleChanged();
    void tickNow(const Device& device, bool watch);
    void addDevice(const Dictionary& record);
    void removeDevice(const Dictionary& record);
    void addSaved(const Device& device);
    void forEachDevice(const Dictionary& info, const std::function<void(const Dictionary&)>& call);
    void post(std::string_view name) { sent.emplace_back(name); }
    void postSetting(std::string_view key, Value value);

    FileManager& files_;
    double now_ = 0;
    double pingDue_ = 0;
    bool pingWaits_ = false;
    std::optional<double> timeoutDue_;
    int timeout_ = 0; ///< tells one from the next
    bool timeoutWaits_ = false;
    int observing_ = 0;
    bool held_ = false;
    bool busy_ = false;
    std::deque<std::function<void()>> waiting_;
};

} // namespace zarvil::fuzz
