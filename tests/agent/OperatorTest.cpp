#include "AgentHarness.h"
#include "agent/Commands.h"
#include "agent/DeviceRecord.h"

namespace zarvil::agent {
namespace {

using Operator = AgentHarness;

TEST_F(Operator, commandsSendTheirMessages) {
    struct Case {
        const char* line;
        std::optional<Message> sent;
    };
    const Dictionary ups = deviceRecord("UPS 1", "Maker", "s 1");
    const std::vector<Case> cases{
        {"plug UPS 1|Maker|s 1", Message(message::deviceConnected, ups)},
        {"  unplug   UPS 1|Maker|s 1  ", Message(message::deviceDisconnected, ups)},
        {"plug A||", Message(message::deviceConnected, deviceRecord("A", "", "N/A"))},
        {"save UPS 1|Maker|s 1", Message(message::newSavedDevice, Dictionary{{"device", ups}})},
        {"state on", Message(message::stateChanged, Dictionary{{"state", true}})},
        {"quitprefs", Message(message::quitPrefs)},
        {"mute on", std::nullopt},
        {"push -1", std::nullopt},
        {"late 5", std::nullopt},
    };
    for (const Case& one : cases) {
        sent.clear();
        EXPECT_EQ(runCommand(*agent, one.line), "ok") << one.line;
        bus.deliver();
        EXPECT_EQ(sent, one.sent ? std::vector{*one.sent} : std::vector<Message>()) << one.line;
    }
    EXPECT_EQ(runCommand(*agent, "quit"), "ok");
    EXPECT_EQ(quits, 1);
}

TEST_F(Operator, linesThatAreNoCommandsAreRefusedAndDoNothing) {
    ASSERT_TRUE(agent->saveByItself(deviceRecord("Saved", "", "")));
    bus.deliver();
    sent.clear();
    for (const char* line :
         {"jump", "PLUG a|b|c", "plug", "plug a|b", "plug a|b|c|d", "plug |b|c", "unplug a|b|c",
          "save Saved||", "state", "state maybe", "mute 1", "push x", "push", "late", "late -1",
          "late 99999999999", "quit now", "quitprefs now"}) {
        const QString answer = runCommand(*agent, line);
        EXPECT_TRUE(!answer.isEmpty() && answer != "ok") << line;
    }
    EXPECT_EQ(runCommand(*agent, "  "), "");
    bus.deliver();
    EXPECT_TRUE(sent.empty());
    EXPECT_EQ(quits, 0);
}

TEST(DeviceFile, keepsRecordsAndReportsTheRest) {
    struct Case {
        const char* json;
        Array devices;
        qsizetype problems;
    };
    const char* record = R"({"DeviceName": "ü", "DeviceVendor": "", "DeviceSerial": "N/A")";
    const Dictionary plain = deviceRecord("ü", "", "");
    Dictionary rich = plain;
    rich.setObject("Further", Dictionary{{"a", Array{1, 2.5, true, "", Dictionary{}}}});
    const std::string further =
        std::string("[") + record + R"(, "Further": {"a": [1, 2.5, true, null, {}]}}])";
    const std::string mixed = std::string("[1, ") + record + R"(}, "x", {"DeviceName": 5}])";
    const std::vector<Case> cases{
        {"[]", {}, 0},
        {"", {}, 1},
        {"[", {}, 1},
        {"{\"devices\": []}", {}, 1},
        {"\xff\xfe", {}, 1},
        {further.c_str(), {rich}, 0},
        {mixed.c_str(), {plain, Dictionary{{"DeviceName", 5}}}, 3},
    };
    for (const Case& one : cases) {
        const DeviceFileContents contents = parseDevices(one.json);
        EXPECT_EQ(contents.devices, one.devices) << one.json;
        EXPECT_EQ(contents.problems.size(), one.problems) << one.json;
    }
    EXPECT_EQ(readDeviceFile("/no/such/file").problems.size(), 1);
}

} // namespace
} // namespace zarvil::agent
