#include "PaneHarness.h"

#include <ostream>

namespace zarvil {

static void PrintTo(const Message& message, std::ostream* out) { *out << message.name; }

namespace {

Dictionary device(std::string_view name, Value serial = "S1", std::string_view vendor = "V") {
    return {{"DeviceName", name}, {"DeviceVendor", vendor}, {"DeviceSerial", std::move(serial)}};
}

Message list(std::string_view name, Value devices) {
    return {name, Dictionary{{"devices", std::move(devices)}}};
}

Message about(std::string_view name, const Dictionary& record) {
    return {name, Dictionary{{"device", record}}};
}

class Devices : public PaneHarness {
protected:
    Devices() { loadWithAgent(); }

    void plug(const Dictionary& record) { agentSends({message::deviceConnected, record}); }
    void unplug(const Dictionary& record) { agentSends({message::deviceDisconnected, record}); }
    void allSaved(Value devices) { agentSends(list(message::allSavedDevices, std::move(devices))); }

    static std::vector<Dictionary> contents(const ArrayController& controller) {
        std::vector<Dictionary> records;
        for (const Record& record : controller.arrangedObjects())
            records.push_back(record->contents());
        return records;
    }
    std::vector<Dictionary> connected() const { return contents(pane.arrayController); }
    std::vector<Dictionary> saved() const { return contents(pane.savedArrayController); }
    std::size_t known() const { return pane.connectedDeviceList().records().size(); }

    /// The check boxes of the saved list, top to bottom.
    std::vector<unsigned long> savedTicks() {
        std::vector<unsigned long> ticks;
        for (std::size_t index = 0; index < saved().size(); ++index)
            ticks.push_back(pane.selectedDevices.itemAtIndexAs<ZVCollectionItem>(index)->state());
        return ticks;
    }
    static void click(CollectionView& view, std::size_t index, unsigned long state) {
        const auto item = view.itemAtIndexAs<ZVCollectionItem>(index);
        ASSERT_TRUE(item);
        item->userDidSetState(state);
    }
    void tick(std::size_t index) { click(pane.connectedDevices, index, 1); }
    void untick(std::size_t index) { click(pane.selectedDevices, index, 0); }

    using Records = std::vector<Dictionary>;
    using Messages = std::vector<Message>;
};

TEST_F(Devices, tickingMovesADeviceToTheSavedListAndTellsTheAgentOnce) {
    Dictionary record = device("UPS");
    record.setObject("Power", Dictionary{{"Watts", 450}, {"Phases", Array{1, 2}}});
    plug(record);
    EXPECT_EQ(connected(), Records{record});
    tick(0);
    EXPECT_EQ(connected(), Records{});
    EXPECT_EQ(saved(), Records{record});
    EXPECT_EQ(savedTicks(), std::vector<unsigned long>{1});
    EXPECT_EQ(takeSent(), Messages{about(message::addedSaveItem, record)});
}

TEST_F(Devices, untickingReturnsADeviceByItsSerialAlone) {
    struct Case {
        const char* description;
        Value pluggedSerial;
        Value savedSerial;
        bool returns;
    };
    const std::vector<Case> cases{
        {"same serial under another name", "S1", "S1", true},
        {"no serial", "N/A", "N/A", false},
        {"empty serials", "", "", true},
        {"numbers of two kinds", 5, 5.0, true},
        {"a number and its digits", 5, "5", false},
        {"nested", Array{1, "a"}, Array{1.0, "a"}, true},
    };
    for (const Case& one : cases) {
        SCOPED_TRACE(one.description);
        const Dictionary plugged = device("plugged", one.pluggedSerial, "A");
        const Dictionary watched = device("watched", one.savedSerial, "B");
        plug(plugged);
        allSaved(Array{watched});
        takeSent();
        untick(0);
        EXPECT_EQ(saved(), Records{});
        EXPECT_EQ(connected(), one.returns ? (Records{plugged, watched}) : Records{plugged});
        EXPECT_EQ(takeSent(), Messages{about(message::saveItemRemoved, watched)});
        pane.arrayController.removeAllArrangedObjects();
        agentSends(list(message::allDevices, Array{}));
    }
}

TEST_F(Devices, untickingADeviceThatIsNotConnectedOrHasNoSerialKeyRemovesItFromBothLists) {
    Dictionary anonymous{{"DeviceName", "no serial key"}};
    plug(anonymous);
    allSaved(Array{anonymous, device("unplugged", "S9")});
    untick(1);
    untick(0);
    EXPECT_EQ(saved(), Records{});
    EXPECT_EQ(connected(), Records{anonymous});
}

TEST_F(Devices, aDeviceOfTheSecondListOfKnownOnesReturnsByItsContents) {
    const Dictionary record = device("known", "N/A");
    pane.devices.push_back(makeRecord(record));
    allSaved(Array{record});
    untick(0);
    EXPECT_EQ(connected(), Records{record});
}

TEST_F(Devices, arrivalAndDepartureCompareNameVendorAndSerialExactly) {
    const Dictionary record = device("UPS", "Serial", "Vendor");
    allSaved(Array{record});
    struct Case {
        const char* description;
        Dictionary plugged;
        bool hidden;
    };
    Dictionary extended = record;
    extended.setObject("Port", 3);
    const std::vector<Case> cases{
        {"same", record, true},
        {"further keys do not count", extended, true},
        {"name", device("ups", "Serial", "Vendor"), false},
        {"vendor", device("UPS", "Serial", "Vendor "), false},
        {"composed and decomposed letters", device("UPS\u0301", "Serial", "Vendor"), false},
        {"nul byte", device(std::string_view("UPS\0", 4), "Serial", "Vendor"), false},
        {"missing vendor", {{"DeviceName", "UPS"}, {"DeviceSerial", "Serial"}}, false},
        {"serial of another type", device("UPS", 7, "Vendor"), false},
    };
    for (const Case& one : cases) {
        SCOPED_TRACE(one.description);
        plug(one.plugged);
        EXPECT_EQ(known(), 1U);
        EXPECT_EQ(connected(), one.hidden ? Records{} : Records{one.plugged});
        unplug(record);
        EXPECT_EQ(known(), one.hidden ? 0U : 1U);
        EXPECT_EQ(saved(), Records{record});
        pane.arrayController.removeAllArrangedObjects();
        agentSends(list(message::allDevices, Array{}));
    }
}

TEST_F(Devices, recordsWithAMissingKeyAreNeverMatchedNotEvenByTheirLike) {
    const std::vector<Dictionary> incomplete{
        {},
        {{"DeviceName", "UPS"}},
        {{"DeviceName", "UPS"}, {"DeviceVendor", "V"}},
        {{"DeviceName", "UPS"}, {"DeviceVendor", "V"}, {"DeviceSerial", 5}},
    };
    for (const Dictionary& record : incomplete) {
        allSaved(Array{record});
        plug(record);
        unplug(record);
        EXPECT_EQ(connected().back(), record);
    }
    EXPECT_EQ(connected().size(), incomplete.size());
    EXPECT_EQ(known(), incomplete.size());
}

TEST_F(Devices, theTickLandsOnTheFirstEqualRecord) {
    allSaved(Array{device("A"), device("B"), device("A")});
    EXPECT_EQ(savedTicks(), (std::vector<unsigned long>{1, 1, 0}));
}

TEST_F(Devices, aDeviceThatTheAgentSavedLeavesTheConnectedList) {
    const Dictionary record = device("UPS");
    plug(record);
    plug(record);
    Dictionary reported = record;
    reported.setObject("Since", 12);
    agentSends(about(message::newSavedDevice, reported));
    EXPECT_EQ(connected(), Records{record});
    EXPECT_EQ(saved(), Records{reported});
    EXPECT_EQ(savedTicks(), std::vector<unsigned long>{1});
    EXPECT_EQ(known(), 1U);
}

TEST_F(Devices, theListOfAllDevicesReplacesWhatIsKnownAndShowsNothing) {
    plug(device("old", "old"));
    agentSends(list(message::allDevices, Array{device("new", "new")}));
    EXPECT_EQ(connected(), Records{device("old", "old")});
    allSaved(Array{device("x", "old"), device("y", "new")});
    untick(1);
    untick(0);
    EXPECT_EQ(connected(), (Records{device("old", "old"), device("y", "new")}));
}

TEST_F(Devices, whatWentWhileTheAgentWasAwayIsKnownNoMore) {
    agentSends(list(message::allConnectedDevices, Array{device("A", "a"), device("B", "b")}));
    time.advance(5);
    plug(device("B", "b"));
    allSaved(Array{device("A", "a")});
    untick(0);
    EXPECT_EQ(connected(), Records{device("B", "b")});
}

TEST_F(Devices, unreadableMessagesNeitherAddNorDisturb) {
    struct Case {
        const char* description;
        std::optional<Dictionary> info;
        std::size_t records;
    };
    const Dictionary good = device("good");
    const std::vector<Case> cases{
        {"no payload", std::nullopt, 0},
        {"no devices", Dictionary{{"Devices", Array{good}}}, 0},
        {"a string", Dictionary{{"devices", "UPS"}}, 0},
        {"a dictionary", Dictionary{{"devices", good}}, 0},
        {"entries of every kind",
         Dictionary{{"devices", Array{"UPS", 3, true, 1.5, Data{}, Array{good}, good}}}, 1},
    };
    for (const Case& one : cases) {
        SCOPED_TRACE(one.description);
        for (const auto name : {message::allSavedDevices, message::allConnectedDevices,
                                message::allDevices, message::newSavedDevice}) {
            Message message(name);
            message.userInfo = one.info;
            agentSends(message);
        }
        EXPECT_EQ(saved(), Records(one.records, good));
        EXPECT_EQ(connected(), Records{}) << "the saved one stays hidden";
        EXPECT_EQ(known(), one.records);
    }
    agentSends(message::deviceConnected);
    agentSends(message::deviceDisconnected);
    agentSends(about(message::newSavedDevice, good));
    agentSends({message::newSavedDevice, Dictionary{{"device", "UPS"}}});
    EXPECT_EQ(saved(), (Records{good, good}));
    EXPECT_EQ(known(), 0U);
}

// A plain walk over vectors, as the rules are worded, plays against the pane.
TEST_F(Devices, aStormOfArrivalsAndDeparturesEndsAsAWalkInOrderWould) {
    std::vector<Dictionary> walkedKnown;
    std::vector<Dictionary> walkedShown;
    const auto removeFirst = [](std::vector<Dictionary>& records, const Dictionary& record) {
        const auto same = std::ranges::find_if(records, [&record](const Dictionary& other) {
            return std::ranges::all_of(std::array{"DeviceName", "DeviceVendor", "DeviceSerial"},
                                       [&](const char* key) {
                                           const Value* left = other.objectForKey(key);
                                           const Value* right = record.objectForKey(key);
                                           return left && right && *left == *right;
                                       });
        });
        if (same != records.end())
            records.erase(same);
    };
    const Dictionary watched = device("N0", "0");
    allSaved(Array{watched});
    unsigned random = 1;
    for (int step = 0; step < 3000; ++step) {
        random = random * 1664525 + 1013904223;
        const unsigned kind = (random >> 16) % 6;
        Dictionary record = kind == 5 ? Dictionary{{"DeviceName", "no serial"}}
                                      : device("N" + std::to_string(kind), std::to_string(kind));
        record.setObject("Step", step);
        if ((random >> 24) % 5 < 3) {
            plug(record);
            walkedKnown.push_back(record);
            if (kind != 0)
                walkedShown.push_back(record);
        } else {
            unplug(record);
            removeFirst(walkedKnown, record);
            removeFirst(walkedShown, record);
        }
    }
    EXPECT_EQ(connected(), walkedShown);
    Records knownRecords;
    for (const Record& record : pane.connectedDeviceList().records())
        knownRecords.push_back(record->contents());
    EXPECT_EQ(knownRecords, walkedKnown);
    EXPECT_EQ(saved(), Records{watched});
}

TEST_F(Devices, connectedRowsAreSortedByNameWatchedOnesAreNot) {
    for (const char* name : {"UPS 10", "ups 9", "Eaton"}) {
        plug(device(name, name));
        allSaved(Array{device("b"), device("a")});
    }
    const auto rows = [](CollectionView& view) {
        std::vector<std::string> names;
        for (std::size_t row = 0; row < view.rowCount(); ++row)
            names.push_back(view.itemAtRowAs<ZVCollectionItem>(row)->name());
        return names;
    };
    EXPECT_EQ(rows(pane.connectedDevices), (std::vector<std::string>{"Eaton", "ups 9", "UPS 10"}));
    EXPECT_EQ(rows(pane.selectedDevices), (std::vector<std::string>{"b", "a"}));
    EXPECT_EQ(connected().front(), device("UPS 10", "UPS 10")) << "as the agent told";
    tick(0);
    EXPECT_EQ(takeSent().back(), about(message::addedSaveItem, device("UPS 10", "UPS 10")));
}

TEST_F(Devices, oddRecordsGetReadableTexts) {
    struct Case {
        Dictionary record;
        std::string name, detail, spoken;
    };
    const std::vector<Case> cases{
        {{}, "Unnamed device", "No serial number", "Unnamed device, No serial number"},
        {device("UPS", "N/A"), "UPS", "V · No serial number", "UPS, V, No serial number"},
        {{{"DeviceName", " "}, {"DeviceVendor", 7}, {"DeviceSerial", Array{1}}},
         "Unnamed device",
         "7 · No serial number",
         "Unnamed device, 7, No serial number"},
        {device("a\nb", "\u202E"), "a\u240Ab", "V · \uFFFD", "a\u240Ab, V, \uFFFD"},
    };
    for (const Case& one : cases) {
        allSaved(Array{one.record});
        const auto item = pane.selectedDevices.itemAtRowAs<ZVCollectionItem>(0);
        EXPECT_EQ(item->name(), one.name);
        EXPECT_EQ(item->detail(), one.detail);
        EXPECT_EQ(item->spokenName(), one.spoken);
    }
    allSaved(Array{device(std::string(1 << 20, 'x'), std::string(1 << 20, 'x'))});
    const auto item = pane.selectedDevices.itemAtRowAs<ZVCollectionItem>(0);
    EXPECT_LT(item->detail().size() + item->toolTip().size(), 10'000U);
}

TEST_F(Devices, emptyListsSayWhy) {
    const auto shown = [this] {
        std::vector<std::string> titles;
        for (const Placeholder* one :
             {&pane.placeholders.noneConnected, &pane.placeholders.noneWatched,
              &pane.placeholders.devicesUnknown})
            if (!one->isHidden())
                titles.push_back(one->text().title);
        return titles;
    };
    using Titles = std::vector<std::string>;
    EXPECT_EQ(shown(), (Titles{"No device connected", "No device watched"}));
    plug(device("A"));
    EXPECT_EQ(shown(), Titles{"No device watched"});
    tick(0);
    EXPECT_EQ(shown(), Titles{"No device connected"});
    time.advance(5);
    EXPECT_EQ(shown(), Titles{"No devices to show"});
}

TEST_F(Devices, anItemWithoutAViewOrARecordIsLeftAlone) {
    ZVCollectionItem loose(strings);
    loose.userDidSetState(1);
    pane.stateDidChange(loose);
    EXPECT_EQ(takeSent(), Messages{});
    plug(device("UPS"));
    const auto item = pane.connectedDevices.itemAtIndexAs<ZVCollectionItem>(0);
    unplug(device("UPS"));
    item->userDidSetState(1);
    EXPECT_EQ(takeSent(), Messages{}) << "its device has left the list";
}

} // namespace
} // namespace zarvil
