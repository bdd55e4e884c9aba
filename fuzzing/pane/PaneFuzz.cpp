#include "Input.h"
#include "Ports.h"
#include "Reference.h"
#include "Values.h"
#include "devices/ZVCollectionItem.h"
#include "pane/Zarvil_Preferences.h"
#include "scripts/ScriptFile.h"
#include "scripts/ZVScriptCollectionItem.h"

#include <algorithm>
#include <optional>

/// A pane and all that can happen to it: messages of an agent that sends anything, a user, time, a
/// bus that goes and comes. After every step it must look and have spoken as the reference.
namespace zarvil::fuzz {

namespace {

constexpr std::string_view scriptsFolder = "/home/user/Library/Zarvil Scripts";
constexpr std::size_t longestScript = 64; // steps

/// As the layouts wire them.
constexpr std::array<std::pair<std::string_view, std::string_view>, 26> wiring{{
    {"togglePowerButton", "toggleOnOff:"},
    {"link", "openLink:"},
    {"checkForUpdates", "autoUpdates:"},
    {"checkForUpdatesNow", "checkForUpdates:"},
    {"viewLogButton", "viewLog:"},
    {"useScriptsButton", "useScripts:"},
    {"scriptsTitle", "create:"},
    {"createNewScript", "create:"},
    {"shutdownDelayText", "setShutdownDelay:"},
    {"toggleMinSec", "toggleMinutesSeconds:"},
    {"forceQuit", "toggleForceQuit:"},
    {"testSettingsButton", "testShutdown:"},
    {"showShutdownMessage", "toggleShowShutdownMessage:"},
    {"showFailureNotifi", "showFailNotifi:"},
    {"showConnectMessage", "toggleShowConnectedMessage:"},
    {"launchAtLogin", "setShouldLaunchAtLogin:"},
    {"showIcon", "toggleShowIcon:"},
    {"monoIcon", "toggleMonoIcon:"},
    {"sendEmail", "useEmailNotifications:"},
    {"email", "setUserEmail:"},
    {"usePushover", "usePushoverAction:"},
    {"pushUserName", "setUserId:"},
    {"pushDeviceName", "setDeviceId:"},
    {"pushValidate", "validatePushover:"},
    {"launchButton", "launchApp:"},
    {"hideShutdownMessageButton", ""},
}};

/// One outlet of the pane and the same of the reference.
struct Pair {
    std::string_view name;
    View* real;
    View* model;
    Control* control = nullptr;
    Control* modelControl = nullptr;
    Button* button = nullptr;
    Button* modelButton = nullptr;
    TextField* field = nullptr;
    TextField* modelField = nullptr;
};

class Trial {
public:
    explicit Trial(Input& input) : input_(input) {
        ports_.files.folders.insert(std::string(scriptsFolder));
        ports_.files.files[std::string(scriptsFolder) + "/a.zvscript"] = "echo a";
        if (input.flag())
            ports_.workspace.running = {{"com.Tessrow.Preferences", 42}};
        model_.isHostListed = !ports_.workspace.running.empty();
        pairOutlets();
        pane_.mainViewDidLoad();
        model_.start();
        pane_.willSelect();
        model_.setSelected(true);
        ports_.bus.whilePosting = [this] { interrupt(); };
        ports_.errors.whilePresenting = [this] { interrupt(); };
        compare();
    }

    void run() {
        for (std::size_t count = 0; count < longestScript && !input_.empty(); ++count) {
            step();
            compare();
        }
        if (model_.isHeld())
            endScript();
        compare();
    }

private:
    void pairOutlets() {
        std::map<std::string_view, View*> models;
        visitOutlets(model_, [&](std::string_view name, View& view) { models[name] = &view; });
        visitOutlets(pane_, [&](std::string_view name, View& view) {
            View& model = *models.at(name);
            pairs_.push_back({name, &view, &model, dynamic_cast<Control*>(&view),
                              dynamic_cast<Control*>(&model), dynamic_cast<Button*>(&view),
                              dynamic_cast<Button*>(&model), dynamic_cast<TextField*>(&view),
                              dynamic_cast<TextField*>(&model)});
        });
        for (const auto& [name, action] : wiring) {
            const Pair& pair = *std::ranges::find(pairs_, name, &Pair::name);
            pair.control->setAction(action);
            pair.modelControl->setAction(action);
            (pair.button ? buttons_ : fields_).push_back(pair);
        }
    }

    /// What happens first to the pane, then to the model, then what interrupted it.
    template <typename Real, typename Model>
    void step(std::string_view what, const Real& real, const Model& model) {
        trace(what);
        inStep_ = true;
        real();
        inStep_ = false;
        model();
        for (const auto& event : std::exchange(meanwhile_, {}))
            event();
    }

    /// With ZARVIL_FUZZ_TRACE in the environment, what happens is told.
    static void trace(std::string_view what) {
        static const bool traces = std::getenv("ZARVIL_FUZZ_TRACE") != nullptr;
        if (traces)
            std::fprintf(stderr, "%.*s\n", static_cast<int>(what.size()), what.data());
    }

    /// Events from within a port.
    void interrupt() {
        if (!inStep_ || interruptions_ >= 3 || input_.byte() != 7)
            return;
        ++interruptions_;
        const Message message = arbitraryMessage(input_);
        trace("interrupted by " + message.name);
        if (input_.byte() == 9) {
            ports_.bus.announce(LinkEvent::Down);
            meanwhile_.push_back([this] { model_.linkChanged(LinkEvent::Down); });
            return;
        }
        ports_.bus.deliver(message);
        meanwhile_.push_back([this, message] { model_.receive(message); });
    }

    void step() {
        interruptions_ = 0;
        switch (input_.below(16)) {
        case 0:
        case 1:
        case 2: {
            const Message message = arbitraryMessage(input_);
            step(
                message.name, [&] { ports_.bus.deliver(message); },
                [&] { model_.receive(message); });
            break;
        }
        case 3: {
            // In such steps that no two timers fire in one: what interrupts one comes before the
            // other.
            constexpr double moment = 0.25;
            static constexpr std::array moments{0, 1, 4, 8, 11, 12, 32};
            for (int count = input_.pick(moments); count > 0; --count)
                step(
                    "time", [&] { ports_.time.advance(moment); }, [&] { model_.advance(moment); });
            break;
        }
        case 4: {
            static constexpr std::array events{LinkEvent::Down, LinkEvent::Up, LinkEvent::NewPeer};
            const LinkEvent event = input_.pick(events);
            step(
                "link", [&] { ports_.bus.announce(event); }, [&] { model_.linkChanged(event); });
            break;
        }
        case 5:
            handleNothing();
            break;
        case 6: {
            const bool selected = input_.flag();
            if (selected)
                pane_.willSelect();
            else
                require(pane_.shouldUnselect() == UnselectReply::Now, "a pane gives way");
            model_.setSelected(selected);
            break;
        }
        case 7:
            if (model_.isHeld())
                endScript();
            break;
        case 8:
            ports_.workspace.launches = input_.flag();
            break;
        case 9:
            upsetFiles();
            break;
        default:
            if (!model_.isHeld())
                useIt();
        }
    }

    void handleNothing() {
        static constexpr std::array names{
            std::pair{"deviceConnected:", "ZVDeviceConnected"},
            std::pair{"deviceDisconnected:", "ZVDeviceDisconnected"},
            std::pair{"allSavedDevices:", "ZVAllSavedDevices"},
            std::pair{"stateChanged:", "ZVState2"},
            std::pair{"setupPrefs:", "ZVSavedPrefs"},
            std::pair{"pushValidationFinished:", "ZVPushValidationFinished"}};
        const auto& choice = input_.pick(names);
        step(
            choice.first, [&] { pane_.performHandler(choice.first, nullptr); },
            [&] { model_.receiveNothing(choice.second); });
    }

    void upsetFiles() {
        const std::string folder(scriptsFolder);
        switch (input_.below(4)) {
        case 0:
            ports_.files.failing.insert(folder + "/b.zvscript");
            break;
        case 1:
            ports_.files.failing.clear();
            break;
        case 2: // a file stands where the folder was
            ports_.files.folders.erase(folder);
            ports_.files.files[folder] = "";
            break;
        default:
            ports_.files.files.erase(folder);
            ports_.files.folders.insert(folder);
        }
    }

    // What a user does; not while a script runs, which blocks the window.

    void useIt() {
        switch (input_.below(6)) {
        case 0:
        case 1: {
            const Pair& pair = buttons_.at(input_.below(buttons_.size()));
            step(
                pair.name, [&] { pair.button->performClick(); },
                [&] { pair.modelButton->performClick(); });
            break;
        }
        case 2:
        case 3:
            edit();
            break;
        case 4:
            tick();
            break;
        default:
            useOther();
        }
    }

    void edit() {
        const Pair& pair = fields_.at(input_.below(fields_.size()));
        const std::uint8_t how = input_.byte();
        if (how % 4 != 3) {
            static constexpr std::array<std::string_view, 3> titles{"a", "b", "c/d"};
            const std::string text = pair.name == "scriptsTitle" && how % 8 < 6
                                         ? std::string(input_.pick(titles))
                                         : arbitraryText(input_);
            step(
                pair.name, [&] { pair.field->userDidEdit(text); },
                [&] { model_.edit(*pair.modelField, text); });
        }
        if (how % 4 == 0)
            return;
        const auto end = [how](TextField& field) {
            if (how % 4 == 1)
                field.userDidLeave();
            else
                field.userDidPressReturn();
        };
        step(
            "end of edit", [&] { end(*pair.field); }, [&] { end(*pair.modelField); });
    }

    void tick() {
        const bool saved = input_.flag();
        CollectionView& list = saved ? pane_.selectedDevices : pane_.connectedDevices;
        const std::size_t count = list.content().arrangedObjects().size();
        if (count == 0)
            return;
        const std::size_t index = input_.below(count);
        const auto item = list.itemAtIndexAs<ZVCollectionItem>(index);
        step(
            "tick", [&] { item->userDidSetState(item->state() == 0 ? 1 : 0); },
            [&] { model_.tick(saved ? model_.selectedDevices : model_.connectedDevices, index); });
    }

    void useOther() {
        static constexpr std::array<std::string_view, 8> actions{
            "support:",      "fbLike:",  "tweet:",    "feedback:",
            "goToPushover:", "viewLog:", "unistall:", "checkForUpdates:"};
        switch (input_.below(5)) {
        case 0: {
            const std::string_view action = input_.pick(actions);
            step(
                action, [&] { pane_.performAction(action, nullptr); },
                [&] { model_.perform(action); });
            break;
        }
        case 1:
            askToUninstall();
            break;
        case 2:
            removeScript();
            break;
        case 3:
            runScript();
            break;
        default:
            pane_.authView.onClick();
            for (auto& question : std::exchange(ports_.authorization.questions, {}))
                question.reply({input_.flag(), "reason"});
        }
    }

    /// While the panel asks, messages and time go on.
    void askToUninstall() {
        if (modal_)
            return;
        modal_ = true;
        ports_.modal.duringModal = [this] {
            for (std::size_t count = input_.below(4); count > 0; --count) {
                step();
                compare();
            }
        };
        pane_.performAction("unistallAction:", nullptr);
        modal_ = false;
        ports_.modal.duringModal = nullptr;
    }

    std::shared_ptr<ZVScriptCollectionItem> scriptAt(std::size_t index) {
        return pane_.scriptsCollection.itemAtIndexAs<ZVScriptCollectionItem>(index);
    }

    /// Only a script that no other equals: of equal ones the first item alone is wired.
    std::optional<std::size_t> anyScript() {
        if (model_.scripts.empty())
            return std::nullopt;
        const std::size_t index = input_.below(model_.scripts.size());
        if (std::ranges::count(model_.scripts, model_.scripts[index]) != 1)
            return std::nullopt;
        return index;
    }

    void removeScript() {
        const auto index = anyScript();
        if (!index)
            return;
        const std::string path = script::filePath(ports_.files, model_.scripts[*index]);
        const bool fails =
            ports_.files.failing.contains(path) || !ports_.files.files.contains(path);
        const auto item = scriptAt(*index);
        step(
            "remove script", [&] { item->remove(); }, [&] { model_.removeScript(*index); });
        model_.alerts += fails ? 1 : 0;
    }

    void runScript() {
        const auto index = anyScript();
        if (!index)
            return;
        const auto item = scriptAt(*index);
        const std::string* text = item->data()->stringForKey("kZVScriptText");
        const bool empty = !text || text->empty();
        ports_.scripts.lasting = input_.flag();
        ports_.scripts.outcome.reset();
        if (input_.flag())
            ports_.scripts.outcome = ScriptError{3, "it failed"};
        step(
            "run script", [&] { item->execute(); },
            [&] {
                model_.runScript(!empty && !ports_.scripts.outcome,
                                 !empty && ports_.scripts.lasting);
            });
    }

    void endScript() {
        const auto end = std::exchange(ports_.scripts.end, nullptr);
        const bool fails = input_.flag();
        step(
            "script ends",
            [&] {
                end(fails ? std::optional(ScriptError{4, "in the end"}) : std::nullopt);
            },
            [&] { model_.scriptEnds(!fails); });
    }

    // What must hold after every step.

    void compare() {
        for (const Pair& pair : pairs_)
            compare(pair);
        require(pane_.lostConnection == model_.lostConnection, "lostConnection");
        require(pane_.state == model_.state, "state");
        require(pane_.testing == model_.testing, "testing");
        require(pane_.togglePowerButton.isOn() == pane_.state, "the switch shows the state");
        require(pane_.onDesc.isHidden() != pane_.offDesc.isHidden(), "one of two texts is shown");
        const int timeouts = ports_.timers.pending[2.0];
        require(timeouts <= 1, "no two time-outs are pending");
        require(model_.isHeld() || timeouts == (model_.isTimeoutPending() ? 1 : 0), "time-out");
        require(ports_.timers.pending[3.0] == 1, "one timer pings");
        compareLists();
        compareTraffic();
    }

    static void compare(const Pair& pair) {
        require(pair.real->isHidden() == pair.model->isHidden() || isPlaceholder(pair), pair.name);
        require(pair.real->alphaValue() == pair.model->alphaValue(), pair.name);
        if (pair.control)
            require(pair.control->isEnabled() == pair.modelControl->isEnabled(), pair.name);
        if (pair.button) {
            require(pair.button->state() == pair.modelButton->state(), pair.name);
            require(pair.button->title() == pair.modelButton->title(), pair.name);
        }
        if (pair.field) {
            require(pair.field->stringValue() == pair.modelField->stringValue(), pair.name);
            require(pair.field->fault().empty() == pair.modelField->fault().empty(), pair.name);
        }
    }
    /// They follow lists that the reference's outlets do not have.
    static bool isPlaceholder(const Pair& pair) {
        return dynamic_cast<Placeholder*>(pair.real) != nullptr;
    }

    void compareLists() {
        compareList(pane_.connectedDevices, model_.connected);
        compareList(pane_.selectedDevices, model_.saved);
        const auto& all = pane_.connectedDeviceList().records();
        require(std::ranges::equal(all, model_.allConnected,
                                   [](const Record& record, const Reference::Device& device) {
                                       return record->contents() == *device;
                                   }),
                "all that is connected");
        const auto scripts = pane_.scriptsArrayController.arrangedObjects();
        require(std::ranges::equal(scripts, model_.scripts,
                                   [](const Record& record, const std::string& title) {
                                       return *record->stringForKey("kZVScriptTitle") == title;
                                   }),
                "scripts");
        require(pane_.guidance.connectedCount.integerValue() ==
                    static_cast<std::int64_t>(model_.connected.size()),
                "what is said of the connected devices");
        require(pane_.guidance.watchedCount.integerValue() ==
                    static_cast<std::int64_t>(model_.saved.size()),
                "what is said of the saved devices");
        require(!pane_.guidance.statusLine.stringValue().empty(), "a status is shown");
    }

    void compareList(CollectionView& list, const std::vector<Reference::Listed>& model) {
        const auto listed = list.content().arrangedObjects();
        require(listed.size() == model.size() && list.rowCount() == model.size(),
                "a list's length");
        std::vector<std::string> keys;
        for (std::size_t index = 0; index < model.size(); ++index) {
            require(listed[index]->contents() == *model[index].device, "a list's record");
            const auto item = list.itemAtIndexAs<ZVCollectionItem>(index);
            require(item->state() == model[index].tick, "a tick");
            const auto row = list.itemAtRowAs<ZVCollectionItem>(index);
            keys.push_back(deviceSortKey(*row->representedObject()));
        }
        if (&list == &pane_.connectedDevices)
            require(std::ranges::is_sorted(keys), "rows stand in order");
    }

    void compareTraffic() {
        for (const Message& message : ports_.bus.sent)
            check(message);
        require(ports_.bus.sent == model_.sent, "what was sent");
        ports_.bus.sent.clear();
        model_.sent.clear();
        require(ports_.workspace.launched.size() == model_.launches, "launches");
        require(ports_.workspace.opened.size() == model_.opened, "addresses opened");
        require(ports_.errors.presented.size() == model_.alerts, "alerts");
        require(countOfExits() == model_.exits, "ends of the host");
    }
    std::size_t countOfExits() const {
        std::size_t count = 0;
        for (const std::string& line : ports_.processes.log)
            count += line.starts_with("exit") || line.starts_with("kill") ? 1 : 0;
        return count;
    }

    /// Whatever the reference says: what leaves the pane is as the protocol has it.
    static void check(const Message& message) {
        require(std::ranges::find(message::paneToAgent, message.name) != message::paneToAgent.end(),
                "a message of the pane's");
        if (message.name != message::prefsChanged)
            return;
        require(message.info().count() == 2, "a setting message has two entries");
        const std::string* key = message.info().stringForKey(payload::prefKey);
        const Value* value = message.info().objectForKey(payload::prefObj);
        require(key && value, "a key and a value");
        const auto* known = std::ranges::find(setting::table, *key, &setting::Description::key);
        require(known != setting::table.end() && known->sent == setting::SentByPane::Yes,
                "a setting that the pane sends");
        const bool fits = known->type == setting::Type::Boolean ? value->as<bool>() != nullptr
                          : known->type == setting::Type::Seconds
                              ? value->as<std::int64_t>() != nullptr
                              : value->as<std::string>() != nullptr;
        require(fits, "the kind of the table");
    }

    Input& input_;
    Ports ports_;
    Ports modelPorts_;
    Zarvil_Preferences pane_{ports_.platform};
    Reference model_{modelPorts_.platform, ports_.files};
    std::vector<Pair> pairs_;
    std::vector<Pair> buttons_;
    std::vector<Pair> fields_;
    std::vector<std::function<void()>> meanwhile_;
    bool inStep_ = false;
    bool modal_ = false;
    int interruptions_ = 0;
};

} // namespace

} // namespace zarvil::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    zarvil::fuzz::Input input(bytes, size);
    zarvil::fuzz::Trial(input).run();
    return 0;
}
