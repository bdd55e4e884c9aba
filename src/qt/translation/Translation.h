#pragma once

#include <QTranslator>

namespace zarvil::qt {

/// The texts of this module in the user's language, which LANGUAGE and the locale's variables name.
/// They serve as long as it lives. Needs the application object.
class Translation {
public:
    enum class Toolkit : bool {
        Left,   ///< the host's affair
        Adopted ///< Qt's own texts too, in the same language, where they are installed
    };

    /// The folder holds a file for each language, such as "zarvil_de.qm".
    Translation(const QString& folder, Toolkit toolkit);

    /// As a code such as "de"; empty where the texts stay English for want of a translation.
    [[nodiscard]] QString language() const;

private:
    QTranslator texts_;
    QTranslator toolkitTexts_;
};

} // namespace zarvil::qt
