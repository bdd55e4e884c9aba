#include "agent/check/Rules.h"

#include "protocol/Messages.h"
#include "protocol/Settings.h"

#include <QTimer>

#include <algorithm>
#include <cstdio>

namespace zarvil::check {

namespace {

using namespace std::chrono_literals;

constexpr auto pingLimit = 2s; // the pane gives the agent up then

QString namesOf(const std::vector<Heard>& messages) {
    QStringList names;
    for (const Heard& heard : messages)
        names << quoted(heard.message.name);
    return names.isEmpty() ? QStringLiteral("nothing") : names.join(", ");
}

bool hasType(const Value& value, setting::Type type) {
    switch (type) {
    case setting::Type::Boolean:
        return value.as<bool>() != nullptr;
    case setting::Type::Seconds:
        return value.as<std::int64_t>() != nullptr;
    case setting::Type::Text:
        return value.as<std::string>() != nullptr;
    }
    return false;
}

} // namespace

QString quoted(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

const Dictionary* Answer::payloadOf(std::string_view name) const {
    const auto found = std::ranges::find_if(
        messages, [name](const Heard& heard) { return heard.message.name == name; });
    return found == messages.end() ? nullptr : &found->message.info();
}

const Value* Answer::setting(std::string_view key) const {
    const Dictionary* settings = payloadOf(message::savedPrefs);
    return settings ? settings->objectForKey(key) : nullptr;
}

Array Answer::devices(std::string_view name) const {
    const Dictionary* payload = payloadOf(name);
    const Array* listed = payload ? payload->arrayForKey(payload::devices) : nullptr;
    return listed ? *listed : Array();
}

void Rules::tell(std::string_view rule, const QString& fault) {
    ++(fault.isEmpty() ? kept_ : broken_);
    std::printf("%-10s %s%s%s\n", fault.isEmpty() ? "right" : "WRONG", qUtf8Printable(quoted(rule)),
                fault.isEmpty() ? "" : ": ", qUtf8Printable(fault));
    std::fflush(stdout);
}

void Rules::skip(std::string_view rule) {
    ++skipped_;
    std::printf("%-10s %s\n", "not tried", qUtf8Printable(quoted(rule)));
}

void Rules::summarize() const {
    std::printf("%d rules kept, %d broken, %d not tried\n", kept_, broken_, skipped_);
}

std::optional<std::vector<Heard>> Rules::heardBeforePing() {
    const std::size_t moment = agent_.heard().size();
    agent_.send(Message(message::ping));
    if (!agent_.waitFor([&] { return agent_.countSince(moment, message::pingAnswer) > 0; },
                        pingLimit))
        return std::nullopt;
    std::vector<Heard> before(agent_.heard().begin() + static_cast<std::ptrdiff_t>(moment),
                              agent_.heard().end());
    const auto answer = std::ranges::find_if(
        before, [](const Heard& heard) { return heard.message.name == message::pingAnswer; });
    before.erase(answer, before.end());
    return before;
}

Answer Rules::ask() {
    const std::size_t moment = agent_.heard().size();
    agent_.send(Message(message::prefsLoaded));
    static_cast<void>(agent_.waitFor(
        [&] { return agent_.countSince(moment, message::stateChanged) > 0; }, pingLimit));
    static_cast<void>(heardBeforePing());
    Answer answer;
    for (std::size_t index = moment; index < agent_.heard().size(); ++index)
        if (agent_.heard()[index].message.name != message::pingAnswer)
            answer.messages.push_back(agent_.heard()[index]);
    return answer;
}

void Rules::change(std::string_view key, const Value& value) {
    agent_.send({message::prefsChanged, Dictionary{{std::string(payload::prefKey), key},
                                                   {std::string(payload::prefObj), value}}});
}

void Rules::check(Extent extent) {
    if (!presence()) {
        skip("all that follows: an agent that answers no ping is absent to the pane");
        return;
    }
    answering();
    settings();
    protection();
    saving();
    nonsense();
    if (extent == Extent::All) {
        testing();
        pushover();
    } else {
        skip("ends a test of the shutdown with ZVTestFinished");
        skip("ends a Pushover check with one ZVPushValidationFinished");
    }
    unasked();
    if (extent == Extent::All)
        quitting();
    else
        skip("quits on ZVQuit");
    for (const std::string_view rule :
         {"shows its log on ZVViewLog", "checks for updates on ZVCheckForUpdates",
          "tells of devices that come and go, and of those that it saves by itself",
          "reports its state and ends the preferences with reason",
          "watches for messages before it takes its name"})
        skip(rule);
}

bool Rules::presence() {
    const QStringList owners = agent_.owners();
    tell("nobody waits in line for the agent's name",
         owners.size() == 1 ? QString() : QString::number(owners.size() - 1) + " do");
    const bool answers = heardBeforePing().has_value();
    tell("answers ZVPing with ZVPingTest within 2 seconds",
         answers ? QString() : QStringLiteral("no answer"));
    if (!answers)
        return false;
    constexpr std::size_t pings = 20;
    const std::size_t moment = agent_.heard().size();
    for (std::size_t count = 0; count < pings; ++count)
        agent_.send(Message(message::ping));
    // What answers this has answered all pings: no answer too many is still under way.
    agent_.send(Message(message::prefsLoaded));
    static_cast<void>(agent_.waitFor(
        [&] {
            return agent_.countSince(moment, message::pingAnswer) >= pings &&
                   agent_.countSince(moment, message::stateChanged) > 0;
        },
        pingLimit));
    const std::size_t answered = agent_.countSince(moment, message::pingAnswer);
    static_cast<void>(heardBeforePing());
    tell("answers each of many pings once",
         answered == pings ? QString()
                           : QStringLiteral("%1 answers to %2").arg(answered).arg(pings));
    return true;
}

void Rules::answering() {
    constexpr std::array order{message::savedPrefs, message::allSavedDevices,
                               message::allConnectedDevices, message::allDevices,
                               message::stateChanged};
    const Answer first = ask();
    const bool inOrder =
        std::ranges::equal(first.messages, order, [](const Heard& heard, std::string_view name) {
            return heard.message.name == name;
        });
    tell("answers ZVPrefsLoaded with settings, saved, connected and all devices and the state, in "
         "this order, each once",
         inOrder ? QString() : namesOf(first.messages));
    const Answer second = ask();
    const bool isSame = std::ranges::equal(
        first.messages, second.messages,
        [](const Heard& one, const Heard& other) { return one.message == other.message; });
    tell("answers every ZVPrefsLoaded alike",
         isSame ? QString() : "the second time " + namesOf(second.messages));
    form(first);
    listedDevices(first);
}

void Rules::form(const Answer& answer) {
    QStringList wrong;
    for (const Heard& heard : answer.messages)
        if (!heard.isWellFormed)
            wrong << quoted(heard.message.name);
    tell("sends one argument of the type a{sv}, or none", wrong.join(", "));
    wrong.clear();
    for (const setting::Description& known : setting::table) {
        const Value* value = answer.setting(known.key);
        if (value && !hasType(*value, known.type))
            wrong << quoted(known.key);
    }
    tell("sends each setting in its type", wrong.join(", "));
    const Dictionary* state = answer.payloadOf(message::stateChanged);
    const Value* reported = state ? state->objectForKey(payload::state) : nullptr;
    tell("sends the state as a boolean", reported && reported->as<bool>()
                                             ? QString()
                                             : QStringLiteral("it is missing or something else"));
}

bool Rules::isStored(std::string_view key, const Value& value) {
    const Answer answer = ask();
    const Value* stored = answer.setting(key);
    return stored && stored->storage().index() == value.storage().index() && *stored == value;
}

void Rules::tryBoolean(std::string_view key) {
    const Answer before = ask();
    const bool former = before.setting(key) && before.setting(key)->boolValue();
    change(key, former); // two in a row: the latter counts
    change(key, !former);
    if (!isStored(key, !former))
        notStored_ += quoted(key) + ' ';
    change(key, former);
}

void Rules::trySeconds(std::string_view key) {
    const Answer before = ask();
    const std::int64_t former = before.setting(key) ? before.setting(key)->integerValue() : 0;
    change(key, former + 1);
    if (!isStored(key, former + 1))
        notStored_ += quoted(key) + ' ';
    change(key, former);
}

void Rules::tryText(std::string_view key) {
    const Answer before = ask();
    const std::string* former =
        before.setting(key) ? before.setting(key)->as<std::string>() : nullptr;
    // An address that was never given cannot be taken back.
    if (!former && key == setting::emailAddress)
        return;
    const Value tried("check@zarvil.example");
    change(key, tried);
    if (!isStored(key, tried))
        notStored_ += quoted(key) + ' ';
    if (key != setting::emailAddress) { // as the pane takes back an ID that was refused
        change(key, std::string());
        const Answer emptied = ask();
        const Value* left = emptied.setting(key);
        if (left && *left != Value(std::string()))
            notStored_ += quoted(key) + " (empty) ";
    }
    change(key, former ? *former : std::string());
}

void Rules::settings() {
    notStored_.clear();
    for (const setting::Description& known : setting::table) {
        if (known.sent == setting::SentByPane::No)
            continue;
        if (known.type == setting::Type::Boolean)
            tryBoolean(known.key);
        else if (known.type == setting::Type::Seconds)
            trySeconds(known.key);
        else
            tryText(known.key);
    }
    tell("stores every setting that ZVPrefsChanged brings, and reports it in its type",
         notStored_.trimmed());
}

void Rules::protection() {
    const auto stateOf = [](const Answer& answer) {
        const Dictionary* payload = answer.payloadOf(message::stateChanged);
        return payload && payload->boolForKey(payload::state);
    };
    const auto order = [this](bool state) {
        agent_.send({message::setState, Dictionary{{std::string(payload::state), state}}});
        return heardBeforePing();
    };
    const bool former = stateOf(ask());
    const auto heard = order(!former);
    const bool reports = heard && std::ranges::any_of(*heard, [](const Heard& message) {
                             return message.message.name == message::stateChanged;
                         });
    tell("does not report back what ZVState has ordered",
         reports ? QStringLiteral("ZVState2 came") : QString());
    tell("switches its protection on ZVState",
         stateOf(ask()) == !former ? QString() : QStringLiteral("it stays as it was"));
    static_cast<void>(order(former));
}

void Rules::nonsense() {
    for (const std::string_view name :
         {message::prefsChanged, message::addedSaveItem, message::saveItemRemoved}) {
        agent_.send(Message(name));
        agent_.sendNonsense(name);
    }
    const Answer before = ask();
    change("NoSuchSetting", Value(7));
    change(setting::shutdownDelay, Value(Array{Value("no number")}));
    agent_.send(Message("ZVNoSuchMessage"));
    const bool answers = heardBeforePing().has_value();
    tell("bears messages without their payload, of a wrong type and of unknown names",
         answers ? QString() : QStringLiteral("it does not answer any more"));
    const Value* former = before.setting(setting::shutdownDelay);
    const Answer after = ask();
    const Value* delay = after.setting(setting::shutdownDelay);
    const bool isKept = former && delay ? *former == *delay : former == delay;
    tell("stores no value of a wrong type", isKept ? QString() : QStringLiteral("it stored one"));
    if (!isKept && former)
        change(setting::shutdownDelay, *former);
}

void Rules::testing() {
    const std::size_t moment = agent_.heard().size();
    agent_.send(Message(message::testShutdown));
    const Answer during = ask();
    const bool isOver = agent_.countSince(moment, message::testFinished) > 0;
    const Value* testing = during.setting(setting::testing);
    tell("reports Testing while a test of the shutdown runs",
         isOver || (testing && testing->boolValue()) ? QString() : QStringLiteral("it does not"));
    const bool ended = agent_.waitFor(
        [&] { return agent_.countSince(moment, message::testFinished) > 0; }, patience_);
    tell("ends a test of the shutdown with ZVTestFinished",
         ended ? QString() : QStringLiteral("none in time"));
}

void Rules::pushover() {
    const std::size_t moment = agent_.heard().size();
    agent_.send(
        {message::validatePushover, Dictionary{{std::string(payload::userId), "nobody"},
                                               {std::string(payload::messageTitle), "test"},
                                               {std::string(payload::messageText), "somemessage"},
                                               {std::string(payload::validate), true}}});
    const auto finished = [&] {
        return agent_.countSince(moment, message::pushValidationFinished);
    };
    const bool ended = agent_.waitFor([&] { return finished() > 0; }, patience_);
    static_cast<void>(heardBeforePing());
    QString fault = ended ? QString() : QStringLiteral("none in time");
    if (finished() > 1)
        fault = QString::number(finished()) + " came";
    for (std::size_t index = moment; index < agent_.heard().size(); ++index) {
        const Message& message = agent_.heard()[index].message;
        const Value* code = message.info().objectForKey(payload::code);
        if (message.name == message::pushValidationFinished && (!code || !code->as<std::int64_t>()))
            fault = QStringLiteral("its code is no integer");
    }
    tell("ends a Pushover check with one ZVPushValidationFinished", fault);
}

void Rules::unasked() {
    QStringList wrong;
    for (const Heard& heard : agent_.heard()) {
        const std::string& name = heard.message.name;
        const bool isKnown =
            std::ranges::find(message::agentToPane, name) != message::agentToPane.end();
        if ((!isKnown || name == message::quitPrefs) && !wrong.contains(quoted(name)))
            wrong << quoted(name);
    }
    tell("sends nothing but the messages of an agent, and no ZVQuitPrefs unasked",
         wrong.join(", "));
}

void Rules::quitting() {
    agent_.send(Message(message::quit));
    QTimer look;
    look.start(50ms);
    const bool gone = agent_.waitFor([this] { return agent_.owners().isEmpty(); }, patience_);
    tell("quits on ZVQuit", gone ? QString() : QStringLiteral("it still owns its name"));
}

} // namespace zarvil::check
