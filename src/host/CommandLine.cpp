#include "host/CommandLine.h"

#include "host/Bundle.h"

#include <QFileInfo>

namespace zarvil::host {

namespace {

/// Reads options in their order; an error ends it.
class Parser {
public:
    explicit Parser(const QStringList& arguments) : rest_(arguments) {}

    std::variant<CommandLine, UsageError> parse(const QString& environmentAppearance) {
        if (!environmentAppearance.isEmpty())
            setAppearance("ZARVIL_APPEARANCE", environmentAppearance);
        while (!rest_.isEmpty() && error_.isEmpty())
            takeArgument();
        if (!error_.isEmpty())
            return UsageError{error_};
        return result_;
    }

private:
    void takeArgument() {
        const QString argument = rest_.takeFirst();
        if (onlyNames_ || !argument.startsWith('-') || argument == QLatin1String("-"))
            setBundle(argument);
        else if (argument == QLatin1String("--"))
            onlyNames_ = true;
        else
            takeOption(argument.section('=', 0, 0), argument.contains('=')
                                                        ? std::optional(argument.section('=', 1))
                                                        : std::nullopt);
    }

    void takeOption(const QString& name, const std::optional<QString>& attached) {
        if (name == QLatin1String("--root"))
            setRoot(valueOf(name, attached));
        else if (name == QLatin1String("--appearance"))
            setAppearance(name, valueOf(name, attached));
        else if (attached)
            error_ = QStringLiteral("unknown option %1, or one without a value").arg(name);
        else if (name == QLatin1String("--help") || name == QLatin1String("-h"))
            result_.wish = CommandLine::Wish::Help;
        else if (name == QLatin1String("--version") || name == QLatin1String("-v"))
            result_.wish = CommandLine::Wish::Version;
        else
            error_ = QStringLiteral("unknown option %1").arg(name);
    }

    QString valueOf(const QString& name, const std::optional<QString>& attached) {
        if (attached)
            return *attached;
        if (rest_.isEmpty()) {
            error_ = QStringLiteral("%1 needs a value").arg(name);
            return {};
        }
        return rest_.takeFirst();
    }

    void setRoot(const QString& folder) {
        if (!error_.isEmpty())
            return;
        const QFileInfo info(folder);
        if (folder.isEmpty() || !info.isDir())
            error_ = QStringLiteral("--root: \"%1\" is not a folder").arg(folder);
        else
            result_.root = info.canonicalFilePath();
    }

    void setAppearance(const QString& source, const QString& text) {
        if (!error_.isEmpty())
            return;
        if (const auto choice = appearanceChoice(text))
            result_.appearance = *choice;
        else
            error_ = QStringLiteral("%1: \"%2\" is none of light, dark and auto").arg(source, text);
    }

    void setBundle(const QString& path) {
        if (path.isEmpty())
            error_ = QStringLiteral("the path of a pane must not be empty");
        else if (!result_.bundle.isEmpty())
            error_ = QStringLiteral("only one pane can be given");
        else
            result_.bundle = path;
    }

    QStringList rest_;
    CommandLine result_;
    QString error_;
    bool onlyNames_ = false;
};

} // namespace

std::variant<CommandLine, UsageError> parseCommandLine(const QStringList& arguments,
                                                       const QString& environmentAppearance) {
    return Parser(arguments).parse(environmentAppearance);
}

QString helpText() {
    const QStringList folders = bundleFolders();
    return QStringLiteral(R"(Usage: zarvil-preferences [OPTION]... [PANE]

Shows the preference panes of this computer, or the one whose bundle folder
PANE is. A second start brings the window of the first to the front.

  --root DIR                    put the product's absolute paths under DIR
  --appearance light|dark|auto  the look; auto follows the desktop
  -h, --help                    show this help and exit
  -v, --version                 show the version and exit

Panes are looked for in
  %1
  %2

Environment: ZARVIL_APPEARANCE is the same as --appearance.
Exit status: 0 success, 64 wrong usage, 65 broken pane, 66 no pane found,
69 no display, or no answer from the window of an earlier start.
)")
        .arg(folders.at(0), folders.at(1));
}

} // namespace zarvil::host
