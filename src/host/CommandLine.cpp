#include "host/CommandLine.h"

#include "host/Bundle.h"

#include <QCommandLineParser>
#include <QFileInfo>

namespace zarvil::host {

namespace {

struct Options {
    QCommandLineParser parser;
    QCommandLineOption root{"root", "Put the product's absolute paths under DIR.", "DIR"};
    QCommandLineOption appearance{
        "appearance", "The look: light, dark, or auto, which follows the desktop.", "LOOK"};
    QCommandLineOption tab{"tab", "Open at the tab of this name, such as \"scripts\".", "NAME"};
    QCommandLineOption diagnose{
        "diagnose", "Print what to tell with a report of a fault, without secrets, and exit."};
    QCommandLineOption service{"service"};
    // Not the parser's own, which offers the toolkit's options too: those are not for here.
    QCommandLineOption help{{"h", "help"}, "Show this help and exit."};

    Options() {
        parser.setApplicationDescription(
            "Shows the preference panes of this computer, or the one whose bundle folder PANE is.\n"
            "A second start brings the window of the first to the front.");
        service.setFlags(QCommandLineOption::HiddenFromHelp);
        parser.addOptions({root, appearance, tab, diagnose, service, help});
        parser.addVersionOption();
        parser.addPositionalArgument("PANE", "The bundle folder of a pane.", "[PANE]");
    }
};

} // namespace

std::variant<CommandLine, UsageError> parseCommandLine(const QStringList& arguments,
                                                       const QString& environmentAppearance) {
    Options options;
    QCommandLineParser& parser = options.parser;
    if (!parser.parse(arguments))
        return UsageError{parser.errorText()};
    CommandLine line;
    if (parser.isSet(options.help))
        line.wish = CommandLine::Wish::Help;
    else if (parser.isSet("version"))
        line.wish = CommandLine::Wish::Version;
    else if (parser.isSet(options.diagnose))
        line.wish = CommandLine::Wish::Diagnose;
    line.isService = parser.isSet(options.service);
    line.tab = parser.value(options.tab);
    if (parser.isSet(options.tab) && line.tab.isEmpty())
        return UsageError{QStringLiteral("--tab: the name of a tab must not be empty")};

    const QStringList panes = parser.positionalArguments();
    if (panes.size() > 1)
        return UsageError{QStringLiteral("only one pane can be given")};
    if (panes.contains(QString()))
        return UsageError{QStringLiteral("the path of a pane must not be empty")};
    line.bundle = panes.value(0);

    if (parser.isSet(options.root)) {
        const QString folder = parser.value(options.root);
        if (folder.isEmpty() || !QFileInfo(folder).isDir())
            return UsageError{QStringLiteral("--root: \"%1\" is not a folder").arg(folder)};
        line.root = QFileInfo(folder).canonicalFilePath();
    }

    const bool chosen = parser.isSet(options.appearance);
    const QString look = chosen ? parser.value(options.appearance) : environmentAppearance;
    if (chosen || !look.isEmpty()) {
        const auto choice = appearanceChoice(look);
        if (!choice)
            return UsageError{QStringLiteral("%1: \"%2\" is none of light, dark and auto")
                                  .arg(chosen ? "--appearance" : "ZARVIL_APPEARANCE", look)};
        line.appearance = *choice;
    }
    return line;
}

QString helpText() {
    return Options().parser.helpText() + QStringLiteral(R"(
Panes are looked for in
  %1

Environment: ZARVIL_APPEARANCE is the same as --appearance.
QT_LOGGING_RULES="zarvil.*=true" makes the program tell what it does.
Exit status: 0 success, 64 wrong usage, 65 broken pane, 66 no pane found,
69 no display, or no answer from the window of an earlier start.
)")
                                             .arg(bundleFolders().join("\n  "));
}

} // namespace zarvil::host
