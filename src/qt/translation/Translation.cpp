#include "qt/translation/Translation.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>

// Decides the direction of the layout even where Qt's own texts are not installed.
[[maybe_unused]] static const char* const direction =
    QT_TRANSLATE_NOOP("QGuiApplication", "QT_LAYOUT_DIRECTION");

namespace zarvil::qt {

Translation::Translation(const QString& folder, Toolkit toolkit) {
    if (!texts_.load(QLocale::system(), "zarvil", "_", folder))
        return;
    QCoreApplication::installTranslator(&texts_);
    if (toolkit == Toolkit::Adopted &&
        toolkitTexts_.load(QLocale(language()), "qtbase", "_",
                           QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(&toolkitTexts_);
}

QString Translation::language() const { return texts_.language(); }

} // namespace zarvil::qt
