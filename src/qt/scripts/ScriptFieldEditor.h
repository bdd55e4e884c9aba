#pragma once

#include "protocol/NonCopyable.h"
#include "scripts/ZVScriptCollectionItem.h"

#include <QRect>
#include <QString>

class QLineEdit;
class QPlainTextEdit;
class QWidget;

namespace zarvil::qt {

/// Where a frame of an item's view, whose y grows upwards, lies in a widget of that size.
[[nodiscard]] QRect flipped(const Rect& frame, const Size& viewSize);

/// The widget of one edit field: a line for the title, several for the text. What the user types
/// goes into the field at once; what he leaves alone stays as it was, byte for byte.
class ScriptFieldEditor : NonCopyable {
public:
    /// Takes its texts from the item that the field belongs to.
    ScriptFieldEditor(const ZVScriptCollectionItem& item, std::shared_ptr<ScriptEditField> field,
                      QWidget* card);
    /// The widget may be in the middle of its own event, so it goes a moment later.
    ~ScriptFieldEditor();

    [[nodiscard]] QWidget* widget() const { return widget_; }
    [[nodiscard]] const ScriptEditField* field() const { return field_.get(); }

private:
    QWidget* makeLine(QWidget* card);
    QWidget* makeText(QWidget* card);
    void showInText(QPlainTextEdit& editor, const std::string& text);
    void takeFromText(const QPlainTextEdit& editor);

    std::shared_ptr<ScriptEditField> field_;
    QString tooLargeText_;
    bool showing_ = false; ///< the widget's change comes from the field
    bool taking_ = false;  ///< the field's change comes from the widget
    Subscription changes_;
    QWidget* widget_; ///< made last: making it fills it from the field
};

} // namespace zarvil::qt
