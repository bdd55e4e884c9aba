#include "interface/ArrayController.h"
#include "interface/Button.h"
#include "interface/CollectionView.h"
#include "interface/NotificationCenter.h"
#include "interface/TextField.h"

#include <gtest/gtest.h>

namespace zarvil {
namespace {

TEST(Property, replaysItsValueThenTellsOfChangesOnly) {
    Property<int> property(3);
    std::vector<int> seen;
    auto subscription = property.observe([&](int value, Transition) { seen.push_back(value); });
    property.set(3);
    property.set(4);
    subscription.cancel();
    property.set(5);
    EXPECT_EQ(seen, (std::vector{3, 4}));
}

TEST(Property, letsObserversCancelEachOtherAndThemselvesWhileCalled) {
    auto property = std::make_unique<Property<int>>();
    int firstCalls = 0;
    int secondCalls = 0;
    Subscription second;
    Subscription first = property->observe([&](int value, Transition) {
        ++firstCalls;
        if (value == 1) {
            second.cancel();
            first.cancel();
        }
    });
    second = property->observe([&](int, Transition) { ++secondCalls; });
    property->set(1);
    property->set(2);
    EXPECT_EQ(firstCalls, 2);
    EXPECT_EQ(secondCalls, 1);
    Subscription outliving = property->observe([](int, Transition) {});
    property.reset();
    outliving.cancel();
}

Record record(const char* name) { return makeRecord(Dictionary{{"name", name}}); }

class Lists : public testing::Test {
protected:
    std::vector<std::string> names() const {
        std::vector<std::string> all;
        for (const Record& listed : list.arrangedObjects())
            all.push_back(*listed->contents().stringForKey("name"));
        return all;
    }
    ArrayController list;
};

TEST_F(Lists, findTheFirstOfEqualRecordsAlsoAfterRemovalsAndEdits) {
    const Record a = record("a");
    const Record b = record("b");
    const Record again = record("a");
    for (const Record& added : {a, b, again})
        list.addObject(added);
    EXPECT_EQ(list.indexOfObject(again->contents()), 0U);
    list.removeObject(again);
    EXPECT_EQ(names(), (std::vector<std::string>{"a", "b"}));
    list.removeObject(record("a"));
    EXPECT_EQ(list.indexOfObject(b->contents()), 0U);
    b->setObject("name", "c");
    EXPECT_EQ(list.indexOfObject(record("c")->contents()), 0U);
    EXPECT_FALSE(list.indexOfObject(record("b")->contents()));
    list.removeObject(record("nobody"));
    EXPECT_EQ(names(), std::vector<std::string>{"c"});
}

TEST_F(Lists, findTheEarlierOfTwoRecordsThatAnEditMadeEqual) {
    const Record early = record("x");
    list.addObject(early);
    list.addObject(record("y"));
    early->setObject("name", "y");
    EXPECT_EQ(list.indexOfObject(record("y")->contents()), 0U);
    list.removeAllArrangedObjects();
    early->setObject("name", "z");
    EXPECT_FALSE(list.indexOfObject(early->contents()));
}

struct Log : ActionTarget {
    void performAction(std::string_view action, Control* /*sender*/) override {
        sent.emplace_back(action);
    }
    std::vector<std::string> sent;
};

TEST(Controls, sendTheirActionOnlyWhenEnabledAndAfterTheStateAdvanced) {
    Log log;
    Button box(ButtonKind::Toggle);
    box.setTarget(&log);
    box.setAction("flip:");
    box.setState(buttonState::mixed);
    box.performClick();
    EXPECT_EQ(box.state(), buttonState::on);
    box.setEnabled(false);
    box.performClick();
    EXPECT_FALSE(box.cell().isEnabled());
    EXPECT_EQ(box.state(), buttonState::on);
    EXPECT_EQ(log.sent, std::vector<std::string>{"flip:"});
    Button untargeted;
    untargeted.performClick();
}

TEST(Controls, announceEditsOfTheUserOnlyToThatFieldsObservers) {
    NotificationCenter center;
    TextField field;
    TextField other;
    field.setNotificationCenter(&center);
    int edits = 0;
    center.addTextObserver(&edits, field, [&](TextField&) { ++edits; });
    field.setStringValue("set by code");
    field.userDidEdit("typed");
    field.userDidEdit("typed");
    other.userDidEdit("elsewhere");
    EXPECT_EQ(edits, 1);
    center.removeObserver(&edits);
    field.userDidEdit("later");
    EXPECT_EQ(edits, 1);
}

} // namespace
} // namespace zarvil
