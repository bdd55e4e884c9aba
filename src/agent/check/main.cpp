#include "agent/check/Rules.h"

#include <QCommandLineParser>
#include <QCoreApplication>

#include <chrono>
#include <cstdio>
#include <cstdlib>

namespace {

constexpr int cannotCheck = 2;

struct CommandLine {
    zarvil::check::Rules::Extent extent;
    std::chrono::seconds patience;
};

[[noreturn]] void refuse(const char* what, const QString& argument) {
    std::fprintf(stderr, "zarvil-check-agent: %s %s\n", what, qUtf8Printable(argument));
    std::exit(cannotCheck);
}

CommandLine readCommandLine(const QCoreApplication& application) {
    QCommandLineParser parser;
    parser.setApplicationDescription(
        "Tries the rules for agents of Zarvil on the one that owns the agent's name, and says of\n"
        "each whether it is kept. What it changes it puts back.\n\n"
        "Exit status: 0 all rules are kept, 1 some are broken, 2 there is nothing to check.");
    parser.addHelpOption();
    parser.addVersionOption();
    const QCommandLineOption all("all", "Also play a test of the shutdown, have a Pushover check "
                                        "made and end the agent.");
    const QCommandLineOption patience(
        "patience", "How long each of these may take, in seconds; 60 unless given.", "seconds",
        "60");
    parser.addOptions({all, patience});
    parser.process(application);
    if (!parser.positionalArguments().isEmpty())
        refuse("unexpected argument", parser.positionalArguments().first());
    bool isNumber = false;
    const ushort seconds = parser.value(patience).toUShort(&isNumber);
    if (!isNumber)
        refuse("no number of seconds:", parser.value(patience));
    using Extent = zarvil::check::Rules::Extent;
    return {parser.isSet(all) ? Extent::All : Extent::Quiet, std::chrono::seconds(seconds)};
}

} // namespace

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName("zarvil-check-agent");
    QCoreApplication::setApplicationVersion(ZARVIL_VERSION);
    const auto [extent, patience] = readCommandLine(application);
    zarvil::BusConnection session{zarvil::BusOptions::sessionBus()};
    zarvil::check::Conversation agent(session);
    if (const QString why = agent.open(); !why.isEmpty()) {
        std::fprintf(stderr, "zarvil-check-agent: %s\n", qUtf8Printable(why));
        return cannotCheck;
    }
    zarvil::check::Rules rules(agent, patience);
    rules.check(extent);
    rules.summarize();
    return rules.broken() == 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}
