#include "agent/CommandLine.h"

#include "agent/Commands.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDir>

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <sys/prctl.h>

namespace zarvil::agent {

namespace {

QString defaultSettingsFile() {
    return QDir::homePath() + "/Library/Preferences/com.Tessrow.Zarvil.plist";
}

QString defaultLogFile() {
    const QString state =
        qEnvironmentVariable("XDG_STATE_HOME", QDir::homePath() + "/.local/state");
    return state + "/zarvil/agent.log";
}

struct CommandLine {
    QCommandLineParser parser;
    QCommandLineOption root{"root",
                            "The folder that stands for / of the installed product. The "
                            "agent keeps nothing there; its files stay in the home folder.",
                            "DIR"};
    QCommandLineOption devices{
        "devices", "A JSON list of the connected devices, in place of the USB devices.", "FILE"};
    QCommandLineOption settings{"settings", "Where the settings are kept.", "FILE",
                                defaultSettingsFile()};
    QCommandLineOption log{"log", "Where the log is kept.", "FILE", defaultLogFile()};
    QCommandLineOption testDuration{"test-duration", "How long a test of the shutdown takes.", "MS",
                                    "2000"};
    QCommandLineOption exitWithParent{"exit-with-parent",
                                      "End when the process that started the agent ends."};

    CommandLine() {
        parser.setApplicationDescription(
            "A stand-in for Zarvil's background agent, for trying its preferences out.\n"
            "It never shuts anything down and never sends anything outside.\n\n"
            "Commands on standard input:\n" +
            commandHelp());
        parser.addHelpOption();
        parser.addVersionOption();
        parser.addOptions({root, devices, settings, log, testDuration, exitWithParent});
    }

    [[noreturn]] static void refuse(const QString& reason) {
        std::fprintf(stderr, "zarvil-agent: %s\n", qUtf8Printable(reason));
        std::exit(EXIT_FAILURE);
    }

    ApplicationOptions read(const QCoreApplication& application) {
        parser.process(application);
        if (!parser.positionalArguments().isEmpty())
            refuse("unexpected argument " + parser.positionalArguments().first());
        if (parser.isSet(root) && !QDir(parser.value(root)).exists())
            refuse("there is no folder " + parser.value(root));
        bool isNumber = false;
        const int duration = parser.value(testDuration).toInt(&isNumber);
        if (!isNumber || duration < 0)
            refuse("--test-duration takes milliseconds");
        return {parser.value(settings), parser.value(log), parser.value(devices),
                std::chrono::milliseconds(duration)};
    }
};

} // namespace

ApplicationOptions readCommandLine(const QCoreApplication& application) {
    QCoreApplication::setApplicationName("zarvil-agent");
    QCoreApplication::setApplicationVersion(ZARVIL_VERSION);
    CommandLine line;
    ApplicationOptions options = line.read(application);
    if (line.parser.isSet(line.exitWithParent))
        prctl(PR_SET_PDEATHSIG, SIGTERM);
    return options;
}

} // namespace zarvil::agent
