#include "qt/scripts/ScriptFieldEditor.h"

#include <QLineEdit>
#include <QLocale>
#include <QPlainTextEdit>
#include <QScopedValueRollback>
#include <QTextDocument>

namespace zarvil::qt {

namespace {

constexpr double linesOfMultiLine = 3;

QFont fieldFont(const QWidget& card, const ScriptEditField& field) {
    QFont font = card.font();
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

ScriptFieldEditor::ScriptFieldEditor(std::shared_ptr<ScriptEditField> field, QWidget* card)
    : field_(std::move(field)),
      multiLine_(field_->frame().height >= linesOfMultiLine * field_->fontSize()),
      widget_(multiLine_ ? makeText(card) : makeLine(card)) {
    widget_->setFont(fieldFont(*card, *field_));
}

ScriptFieldEditor::~ScriptFieldEditor() {
    changes_.cancel();
    widget_->disconnect();
    widget_->hide();
    widget_->deleteLater();
}

QWidget* ScriptFieldEditor::makeLine(QWidget* card) {
    auto* line = new QLineEdit(card);
    line->setAccessibleName(tr("Title of the script"));
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
    auto* editor = new QPlainTextEdit(card);
    editor->setAccessibleName(tr("Text of the script"));
    editor->setTabChangesFocus(true);
    // The standard frame is hard to see on a dark card.
    editor->setFrameStyle(QFrame::Box | QFrame::Plain);
    QPalette palette = editor->palette();
    palette.setColor(QPalette::WindowText, palette.color(QPalette::Mid));
    editor->setPalette(palette);
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
    const bool tooLarge = text.size() > largestEditableText;
    editor.setReadOnly(tooLarge);
    editor.setLineWrapMode(tooLarge ? QPlainTextEdit::WidgetWidth : QPlainTextEdit::NoWrap);
    if (tooLarge) {
        editor.setPlainText(
            tr("This script is too large to be edited here (%1). Its text stays as "
               "it is; its title can be changed.")
                .arg(QLocale().formattedDataSize(static_cast<qint64>(text.size()))));
        return;
    }
    carriageReturns_ = text.find("\r\n") != std::string::npos;
    editor.setPlainText(QString::fromUtf8(text));
}

void ScriptFieldEditor::takeFromText(const QPlainTextEdit& editor) {
    const QScopedValueRollback guard(taking_, true);
    QString text = textOf(editor);
    if (carriageReturns_)
        text.replace(u'\n', QLatin1String("\r\n"));
    field_->userDidEdit(text.toStdString());
}

} // namespace zarvil::qt
