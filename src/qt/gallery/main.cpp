#include "Picture.h"

#include <QCommandLineParser>
#include <QDir>
#include <QGuiApplication>

#include <cstdio>

namespace {

using zarvil::gallery::Case;

bool writeAll(const QDir& folder) {
    for (const Case& shown : zarvil::gallery::allCases())
        for (const int scale : {1, 2}) {
            const QString path = folder.filePath(
                QStringLiteral("%1@%2x.png").arg(QString::fromUtf8(shown.name)).arg(scale));
            if (!zarvil::gallery::picture(shown, scale).save(path)) {
                std::fprintf(stderr, "cannot write %s\n", qPrintable(path));
                return false;
            }
        }
    return true;
}

} // namespace

int main(int argc, char** argv) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Writes a picture of each control in its states to OUTDIR."));
    parser.addPositionalArgument(QStringLiteral("OUTDIR"), QStringLiteral("Made if need be."));
    const QCommandLineOption renderer(
        QStringLiteral("renderer"),
        QStringLiteral("What draws: raster, the renderer of every front end (default)."),
        QStringLiteral("name"), QStringLiteral("raster"));
    const QCommandLineOption help({QStringLiteral("h"), QStringLiteral("help")},
                                  QStringLiteral("Show this help."));
    parser.addOptions({renderer, help});
    const bool understood = parser.parse(QGuiApplication::arguments());
    if (parser.isSet(help)) {
        std::fputs(qPrintable(parser.helpText()), stdout);
        return 0;
    }
    if (!understood || parser.positionalArguments().size() != 1 ||
        parser.value(renderer) != QLatin1String("raster")) {
        std::fputs(qPrintable(parser.helpText()), stderr);
        return 2;
    }
    const QDir folder(parser.positionalArguments().constFirst());
    if (!folder.mkpath(QStringLiteral("."))) {
        std::fprintf(stderr, "cannot make the folder %s\n", qPrintable(folder.path()));
        return 1;
    }
    return writeAll(folder) ? 0 : 1;
}
