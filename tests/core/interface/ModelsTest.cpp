#include "interface/ArrayController.h"
#include "interface/Button.h"
#include "interface/CollectionView.h"
#include "interface/DisplayText.h"
#include "interface/NotificationCenter.h"
#include "interface/TextField.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

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

TEST(ObserverList, keepsWhatIsCalledUntilItReturnsThoughItsSubjectEnds) {
    auto list = std::make_unique<ObserverList<>>();
    std::vector<Subscription> kept;
    std::string calls;
    const auto add = [&](auto observer) { kept.push_back(list->add(std::move(observer))); };
    auto owned = std::make_shared<char>('a');
    const std::weak_ptr<char> token = owned;
    add([&, owned] {
        kept.front().cancel();
        add([&calls] { calls += 'n'; });
        if (calls.empty())
            list->notify(); // reaches neither this one nor what ends in the course of it
        calls += token.expired() ? '-' : *owned;
        list.reset();
    });
    add([&] { calls += 'b'; });
    owned.reset();
    list->notify();
    EXPECT_EQ(calls, "bnab");
    EXPECT_TRUE(token.expired());
}

TEST(ObserverList, letsGoOfWhatAnObserverOwnsOnceItIsCancelled) {
    ObserverList<> list;
    for (const bool isCalled : {false, true}) {
        auto owned = std::make_shared<Subscription>();
        const std::weak_ptr<Subscription> token = owned;
        *owned = list.add([&cancelled = *owned, isCalled, owned] {
            if (isCalled)
                cancelled.cancel();
        });
        Subscription& cancelled = *std::exchange(owned, nullptr);
        if (isCalled)
            list.notify();
        else
            cancelled.cancel();
        EXPECT_TRUE(token.expired());
    }
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
    EXPECT_EQ(list.indexOfObject(again), 0U);
    list.removeObject(again);
    EXPECT_EQ(names(), (std::vector<std::string>{"a", "b"}));
    list.removeObject(record("a"));
    EXPECT_EQ(list.indexOfObject(b), 0U);
    EXPECT_FALSE(list.indexOfObject(a)) << "where another was removed";
    b->setObject("name", "c");
    EXPECT_EQ(list.indexOfObject(record("c")), 0U);
    EXPECT_FALSE(list.indexOfObject(record("b")));
    list.removeObject(record("nobody"));
    EXPECT_EQ(names(), std::vector<std::string>{"c"});
}

TEST_F(Lists, findTheEarlierOfTwoRecordsThatAnEditMadeEqual) {
    const Record early = record("x");
    list.addObject(early);
    list.addObject(record("y"));
    early->setObject("name", "y");
    EXPECT_EQ(list.indexOfObject(record("y")), 0U);
    list.removeAllArrangedObjects();
    early->setObject("name", "z");
    EXPECT_FALSE(list.indexOfObject(early));
}

// A plain vector plays against the list, whatever the hash is worth.
TEST_F(Lists, findTheFirstOfEqualOnesAfterAnyAdditionsEditsAndRemovals) {
    for (const ArrayController::Hash hash :
         {&ArrayController::hashOfContents, +[](const MutableRecord&) -> std::size_t { return 7; },
          +[](const MutableRecord& one) -> std::size_t {
              return static_cast<std::size_t>(one.stringForKey("name")->front() % 5);
          }}) {
        ArrayController tested(hash);
        std::mt19937 random(1); // NOLINT: the same walk in every run
        std::vector<Record> model;
        for (int step = 0; step < 2000; ++step) {
            const Record wanted =
                record(std::string(1, static_cast<char>('a' + random() % 9)).c_str());
            const auto found = std::ranges::find_if(model, [&](const Record& candidate) {
                return candidate->contents() == wanted->contents();
            });
            const auto index = static_cast<std::size_t>(found - model.begin());
            ASSERT_EQ(tested.indexOfObject(wanted).value_or(model.size()), index) << step;
            // Grows for some time, then shrinks.
            const auto kind = random() % (step / 400 % 2 == 0 ? 3 : 6);
            if (kind < 2 || model.empty()) {
                model.push_back(wanted);
                tested.addObject(wanted);
            } else if (kind == 2) {
                model[random() % model.size()]->setObject("name", *wanted->stringForKey("name"));
            } else if (found != model.end()) {
                tested.removeObject(wanted);
                model.erase(found);
            }
            ASSERT_EQ(tested.arrangedObjects().size(), model.size());
        }
        EXPECT_TRUE(std::ranges::equal(tested.arrangedObjects(), model));
    }
}

class Fetched final : public LateEntry {
public:
    std::string_view key() const override { return "text"; }
    Value fetch(const std::string& note) const override { return "read from " + note; }
};

TEST(LateEntry, isFetchedUnlessAnEditTakesItsPlace) {
    const auto late = std::make_shared<const Fetched>();
    for (const auto& [edited, text] : {std::pair{"text", "new"}, {"name", "read from note"}}) {
        MutableRecord tested(Dictionary{{"name", "old"}, {"text", "note"}}, late);
        int edits = 0;
        const Subscription counting = tested.observeEdits([&] { ++edits; });
        tested.setObject(edited, "new");
        EXPECT_EQ(*tested.contents().stringForKey("text"), text);
        EXPECT_EQ(edits, 1);
    }
}

TEST(RecordWatcher, isNotToldOnceAnotherHasEndedIt) {
    MutableRecord watched(Dictionary{});
    struct Watcher final : RecordWatcher {
        void recordWasEdited(const MutableRecord&) override { onEdit(); }
        std::function<void()> onEdit;
    } first, second;
    first.onEdit = [&] { watched.removeWatcher(second); };
    second.onEdit = [] { FAIL(); };
    for (Watcher* watcher : {&first, &second})
        watched.addWatcher(*watcher);
    watched.setObject("name", "new");
}

TEST_F(Lists, areToldOfAnEditOnceForEachTimeTheyListTheRecord) {
    const Record edited = record("a");
    ArrayController other;
    std::string told;
    const auto log = [&told](char name) {
        return [&told, name](const ListChange& change) {
            if (change.kind == ListChange::Kind::Edited)
                told += name;
        };
    };
    const Subscription first = list.observe(log('1'));
    const Subscription second = other.observe(log('2'));
    for (ArrayController* adding : {&list, &other, &list})
        adding->addObject(edited);
    edited->setObject("name", "b");
    for (ArrayController* removing : {&list, &other, &other})
        removing->removeObject(edited);
    edited->setObject("name", "c");
    EXPECT_EQ(told, "1121");
}

// A plain sorted vector plays against the view; the observer keeps the rows by what it is told.
TEST_F(Lists, rowsAreSortedForDisplayAndToldOfOneByOne) {
    const auto key = [](const MutableRecord& shown) {
        return *shown.contents().stringForKey("name");
    };
    CollectionView view(
        list, [] { return std::make_shared<CollectionViewItem>(); }, key);
    const auto nameAt = [&](std::size_t row) {
        return key(*view.itemToReadAtRow(row)->representedObject());
    };
    std::vector<std::string> told;
    std::size_t countBefore = 0;
    const auto rows = view.observeRows([&](const RowChange& change) {
        if (change.phase == RowChange::Phase::Before) {
            countBefore = view.rowCount();
            return;
        }
        const auto place = told.begin() + static_cast<std::ptrdiff_t>(change.row);
        if (change.kind == RowChange::Kind::Removed || change.kind == RowChange::Kind::Moved)
            told.erase(place);
        if (change.kind == RowChange::Kind::Inserted)
            told.insert(place, nameAt(change.row));
        if (change.kind == RowChange::Kind::Moved)
            told.insert(told.begin() + static_cast<std::ptrdiff_t>(change.to), nameAt(change.to));
        if (change.kind == RowChange::Kind::Cleared)
            told.clear();
    });
    std::vector<Record> arranged;
    unsigned random = 7;
    const auto next = [&random](std::size_t below) {
        random = random * 1664525 + 1013904223;
        return (random >> 8) % below;
    };
    for (int step = 0; step < 4000; ++step) {
        const std::size_t at = next(arranged.size() + 1);
        const std::string name = std::to_string(next(500));
        if (at == arranged.size() || next(3) > 0) {
            arranged.push_back(record(name.c_str()));
            list.addObject(arranged.back());
        } else if (next(2) == 0) {
            arranged[at]->setObject("name", name);
        } else {
            EXPECT_EQ(view.itemAtIndex(at)->representedObject(), arranged[at]);
            list.removeObject(arranged[at]);
            arranged.erase(arranged.begin() + static_cast<std::ptrdiff_t>(at));
            EXPECT_EQ(countBefore, view.rowCount() + 1);
        }
    }
    std::vector<std::string> sorted = names();
    EXPECT_EQ(sorted.size(), arranged.size());
    std::ranges::sort(sorted);
    EXPECT_EQ(told, sorted);
    for (std::size_t row = 0; row < sorted.size(); ++row) {
        EXPECT_EQ(nameAt(row), sorted[row]);
        EXPECT_EQ(view.rowOfSerial(view.serialAtRow(row)), row);
    }
    EXPECT_EQ(view.itemToReadAtRow(sorted.size()), nullptr);
    const std::weak_ptr<MutableRecord> last = view.itemToReadAtRow(0)->representedObject();
    list.removeObject(last.lock());
    std::erase(arranged, last.lock());
    EXPECT_TRUE(last.expired()) << "what was read is not kept";
    const auto kept = view.itemAtRow(0);
    EXPECT_EQ(view.itemToReadAtRow(0), kept.get());
    EXPECT_EQ(kept->collectionView(), &view);
    list.removeAllArrangedObjects();
    EXPECT_EQ(kept->collectionView(), nullptr);
    EXPECT_TRUE(told.empty());
}

TEST(DisplayText, showsWhatWouldBeInvisibleAndDefusesWhatWouldReorder) {
    struct Case {
        std::string text, line, lines;
    };
    const Case cases[] = {
        {std::string("\0\t\x1b\x7f", 4), "\u2400\u2409\u241B\u2421", "\u2400\t\u241B\u2421"},
        {"a\r\nb\rc\n", "a\u240D\u240Ab\u240Dc\u240A", "a\nb\u240Dc\n"},
        {"a\u0085b\u2028c", "a\uFFFDb\uFFFDc", "a\uFFFDb\uFFFDc"},
        {"\u202Ex\u202C\u2066\u2069\u206A", "\uFFFDx\uFFFD\uFFFD\uFFFD\uFFFD",
         "\uFFFDx\uFFFD\uFFFD\uFFFD\uFFFD"},
        {"\u200Fשלום e\u0301 🔌\u0939", "\u200Fשלום e\u0301 🔌\u0939", "\u200Fשלום e\u0301 🔌\u0939"},
        {"\xff\xe2\x82", "\uFFFD\uFFFD\uFFFD", "\uFFFD\uFFFD\uFFFD"},
    };
    for (const auto& [text, line, lines] : cases) {
        EXPECT_EQ(showableText(text, 100), line);
        EXPECT_EQ(showableText(text, 100, LineBreaks::Kept), lines);
    }
}

TEST(DisplayText, shortensBetweenWholeCharacters) {
    EXPECT_EQ(showableText("0123456789", 10), "0123456789");
    EXPECT_EQ(showableText("0123456789A", 10), "01234…6789A");
    EXPECT_EQ(showableText("0123456789A", 10, LineBreaks::Kept), "0123456789…");
    for (std::size_t limit = 2; limit < 40; ++limit) {
        const std::string shown = showableText("🔌🔌🔌🔌🔌🔌🔌🔌🔌🔌🔌🔌", limit);
        EXPECT_EQ(shown.find("\uFFFD"), std::string::npos) << limit;
    }
    EXPECT_EQ(showableText(std::string(1 << 20, '\x80'), 4),
              "\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD…");
}

TEST(DisplayText, sortsNumbersByValueAndLettersWithoutCaseAndAccents) {
    const std::string nines(255, '9');
    const std::string power = "1" + std::string(300, '0');
    const std::vector<std::string> sorted{"",     "2",    "010",   nines,    power,     "a", "É 1",
                                          "e 02", "über", "UPS 9", "ups 10", "UPS 10a", "Z", "ж"};
    for (std::size_t index = 1; index < sorted.size(); ++index)
        EXPECT_LT(naturalSortKey(sorted[index - 1]), naturalSortKey(sorted[index]))
            << sorted[index];
    EXPECT_EQ(naturalSortKey("UPS 007"), naturalSortKey("ups 7"));
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
