#include "qt/scripts/ScriptFieldEditor.h"

#include "qt/widgets/Theme.h"

#include <QEvent>
#include <QFontDatabase>
#include <QLineEdit>
#include <QPainter>
#include <QPlainTextEdit>
#include <QScopedValueRollback>
#include <QTextDocument>

namespace zarvil::qt {

namespace {

bool isText(const ScriptEditField& field) { return field.kind() == ScriptEditField::Kind::Text; }

/// The standard frame is hard to see on a dark card and says nothing of the keyboard.
class FramedText final : public QPlainTextEdit {
public:
    explicit FramedText(QWidget* card) : QPlainTextEdit(card) {
        setTabChangesFocus(true);
        setFrameStyle(QFrame::Box | QFrame::Plain);
    }

protected:
    bool event(QEvent* event) override {
        const bool handled = QPlainTextEdit::event(event);
        if (event->type() == QEvent::Paint) // of the frame: the text is the viewport's
            paintFrame();
        else if (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut)
            update();
        return handled;
    }

private:
    void paintFrame() {
        constexpr double share = 0.4; // of the text's color in the frame
        QPainter painter(this);
        const QColor ground = palette().color(QPalette::Base);
        painter.setPen(hasFocus() ? theme::shield(palette())
                                  : theme::mixed(ground, palette().color(QPalette::Text), share));
        painter.drawRect(rect().adjusted(0, 0, -1, -1));
    }
};

QFont fieldFont(const QWidget& card, const ScriptEditField& field) {
    QFont font = isText(field) ? QFontDatabase::systemFont(QFontDatabase::FixedFont) : card.font();
    // Points of a card are logical pixels.
    font.setPixelSize(qRound(field.fontSize()));
    return font;
}

/// The document's text as it is, no-break spaces included; `toPlainText` would turn them into
/// blanks.
QString textOf(const QPlainTextEdit& editor) {
    QString text = editor.document()->toRawText();
    text.replace(QChar::ParagraphSeparator, u'\n');
    text.replace(QChar::LineSeparator, u'\n');
    return text;
}

} // namespace

QRect flipped(const Rect& frame, const Size& viewSize) {
    return QRectF(frame.x, viewSize.height - frame.y - frame.height, frame.width, frame.height)
        .toRect();
}

ScriptFieldEditor::ScriptFieldEditor(const ZVScriptCollectionItem& item,
                                     std::shared_ptr<ScriptEditField> field, QWidget* card)
    : field_(std::move(field)),
      tooLargeText_(QString::fromUtf8(item.tooLargeText())),
      widget_(isText(*field_) ? makeText(card) : makeLine(card)) {
    widget_->setFont(fieldFont(*card, *field_));
    widget_->setAccessibleName(QString::fromUtf8(
        field_.get() == item.eTitle() ? item.titleFieldName() : item.textFieldName()));
}

ScriptFieldEditor::~ScriptFieldEditor() {
    changes_.cancel();
    // Blocked, not disconnected: Qt's accessibility must hear of its end, which is told all the
    // same, or the next widget at this address would be taken for the dead one.
    widget_->blockSignals(true);
    widget_->hide();
    widget_->deleteLater();
}

QWidget* ScriptFieldEditor::makeLine(QWidget* card) {
    auto* line = new QLineEdit(card);
    changes_ = field_->stringProperty().observe([this, line](const std::string& text, Transition) {
        if (!taking_)
            line->setText(QString::fromUtf8(text));
    });
    QObject::connect(line, &QLineEdit::textEdited, line, [this](const QString& text) {
        const QScopedValueRollback guard(taking_, true);
        field_->userDidEdit(text.toStdString());
    });
    return line;
}

QWidget* ScriptFieldEditor::makeText(QWidget* card) {
    auto* editor = new FramedText(card);
    changes_ =
        field_->stringProperty().observe([this, editor](const std::string& text, Transition) {
            if (!taking_)
                showInText(*editor, text);
        });
    QObject::connect(editor, &QPlainTextEdit::textChanged, editor, [this, editor] {
        if (!showing_ && !editor->isReadOnly())
            takeFromText(*editor);
    });
    return editor;
}

void ScriptFieldEditor::showInText(QPlainTextEdit& editor, const std::string& text) {
    const QScopedValueRollback guard(showing_, true);
    const bool tooLarge = field_->isTooLarge();
    editor.setReadOnly(tooLarge);
    editor.setLineWrapMode(tooLarge ? QPlainTextEdit::WidgetWidth : QPlainTextEdit::NoWrap);
    if (tooLarge) {
        editor.setPlainText(tooLargeText_);
        return;
    }
    editor.setPlainText(QString::fromUtf8(text));
}

void ScriptFieldEditor::takeFromText(const QPlainTextEdit& editor) {
    const QScopedValueRollback guard(taking_, true);
    field_->userDidEditLines(textOf(editor).toStdString());
}

} // namespace zarvil::qt
