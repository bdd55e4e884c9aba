#include "agent/check/Rules.h"

#include <QCommandLineParser>
#include <QCoreApplication>

#include <cstdio>
#include <cstdlib>

namespace {

constexpr int cannotCheck = 2;

zarvil::check::Rules::Extent readCommandLine(const QCoreApplication& application) {
    QCommandLineParser parser;
    parser.setApplicationDescription(
        "Tries the rules for agents of Zarvil on the one that owns the agent's name, and says of\n"
        "each whether it is kept. What it changes it puts back.\n\n"
        "Exit status: 0 all rules are kept, 1 some are broken, 2 there is nothing to check.");
    parser.addHelpOption();
    parser.addVersionOption();
    const QCommandLineOption all("all", "Also play a test of the shutdown, have a Pushover check "
                                        "made and end the agent.");
    parser.addOption(all);
    parser.process(application);
    if (!parser.positionalArguments().isEmpty()) {
        std::fprintf(stderr, "zarvil-check-agent: unexpected argument %s\n",
                     qUtf8Printable(parser.positionalArguments().first()));
        std::exit(cannotCheck);
    }
    using Extent = zarvil::check::Rules::Extent;
    return parser.isSet(all) ? Extent::All : Extent::Quiet;
}

} // namespace

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName("zarvil-check-agent");
    QCoreApplication::setApplicationVersion(ZARVIL_VERSION);
    const auto extent = readCommandLine(application);
    zarvil::BusConnection session{zarvil::BusOptions::sessionBus()};
    zarvil::check::Conversation agent(session);
    if (const QString why = agent.open(); !why.isEmpty()) {
        std::fprintf(stderr, "zarvil-check-agent: %s\n", qUtf8Printable(why));
        return cannotCheck;
    }
    zarvil::check::Rules rules(agent);
    rules.check(extent);
    rules.summarize();
    return rules.broken() == 0 ? EXIT_SUCCESS : EXIT_FAILURE;
}
