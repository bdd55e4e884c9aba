#pragma once

#include <QString>

namespace zarvil::qt {

/// A tool tip for plain text: a tip takes what looks like markup for markup, so the text goes
/// there as markup that stands for itself. A block for each line, so that each finds its own
/// direction.
[[nodiscard]] inline QString plainToolTip(const QString& text) {
    if (text.isEmpty())
        return {};
    const QString blockEnd = QStringLiteral("</p>");
    const QString blockStart = QStringLiteral("<p style='margin:0; white-space:pre-wrap'>");
    QString lines = text.toHtmlEscaped();
    lines.replace(u'\n', blockEnd + blockStart);
    return blockStart + lines + blockEnd;
}

} // namespace zarvil::qt
