#include "Cases.h"

#include "qt/canvas/Convert.h"

#include <QDir>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>

#include <cstdio>

namespace {

using zarvil::gallery::Case;

/// Drawn with 16 bits a channel, so that nothing but the last step to the file rounds.
QImage rendered(const Case& shown, int scale) {
    QImage image((zarvil::qt::toQt(shown.viewSize) * scale).toSize(),
                 QImage::Format_RGBA64_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.scale(scale, scale);
    {
        zarvil::qt::QtCanvas canvas(painter, zarvil::qt::toQt(shown.viewSize), shown.orientation);
        shown.draw(canvas);
    }
    painter.end();
    return image.convertToFormat(QImage::Format_RGBA64).convertToFormat(QImage::Format_RGBA8888);
}

bool writeAll(const QDir& folder) {
    for (const Case& shown : zarvil::gallery::allCases())
        for (const int scale : {1, 2}) {
            const QString path = folder.filePath(
                QStringLiteral("%1@%2x.png").arg(QString::fromUtf8(shown.name)).arg(scale));
            if (!rendered(shown, scale).save(path)) {
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
    const QString argument = argc == 2 ? QString::fromLocal8Bit(argv[1]) : QString();
    const bool wantsHelp = argument == QLatin1String("--help") || argument == QLatin1String("-h");
    if (wantsHelp || argument.isEmpty() || argument.startsWith('-')) {
        std::fprintf(wantsHelp ? stdout : stderr,
                     "Usage: zarvil-controls-gallery OUTDIR\n"
                     "Writes a picture of each control in its states to OUTDIR.\n");
        return wantsHelp ? 0 : 2;
    }
    const QDir folder(argument);
    if (!folder.mkpath(QStringLiteral("."))) {
        std::fprintf(stderr, "cannot make the folder %s\n", argv[1]);
        return 1;
    }
    return writeAll(folder) ? 0 : 1;
}
