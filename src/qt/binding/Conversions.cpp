#include "qt/binding/Conversions.h"

namespace zarvil::qt {

QString toQt(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

std::string fromQt(const QString& text) { return text.toStdString(); }

QColor toQt(const Color& color) {
    return QColor::fromRgbF(static_cast<float>(color.red), static_cast<float>(color.green),
                            static_cast<float>(color.blue), static_cast<float>(color.alpha));
}

Qt::Alignment toQt(TextAlignment alignment) {
    switch (alignment) {
    case TextAlignment::Left:
        return Qt::AlignLeft;
    case TextAlignment::Right:
        return Qt::AlignRight;
    case TextAlignment::Centered:
        break;
    }
    return Qt::AlignHCenter;
}

} // namespace zarvil::qt
