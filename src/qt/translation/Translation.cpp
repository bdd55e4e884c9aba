#include "qt/translation/Translation.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>

// Decides the direction of the layout even where Qt's own texts are not installed.
[[maybe_unused]] static const char* const direction =
    QT_TRANSLATE_NOOP("QGuiApplication", "QT_LAYOUT_DIRECTION");

// Names a function outside of every namespace.
static void registerTexts() { Q_INIT_RESOURCE(zarvil_texts); }

namespace zarvil::qt {

Translation::Translation(Toolkit toolkit) {
    registerTexts();
    if (!texts_.load(QLocale::system(), "zarvil", "_", ":/zarvil/translations"))
        return;
    QCoreApplication::installTranslator(&texts_);
    if (toolkit == Toolkit::Adopted &&
        toolkitTexts_.load(QLocale(language()), "qtbase", "_",
                           QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(&toolkitTexts_);
}

QString Translation::language() const { return texts_.language(); }

} // namespace zarvil::qt
