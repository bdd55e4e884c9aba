#include "qt/scripts/ScriptCard.h"

#include <QFontDatabase>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QStringList>

#include <algorithm>

namespace zarvil::qt {

namespace {

// The item's view has the title on top, the text at the bottom and a band between them. What is
// read stands where it is edited.
constexpr Rect titleFrame{15, 108, 490, 26};
constexpr Rect textFrame{20, 10, 558, 70};
constexpr Rect buttonBand{0, 82, 578, 24};
constexpr int titleFontSize = 15;
constexpr int textFontSize = 13;
constexpr int buttonGap = 6;
constexpr double cornerRadius = 6;
constexpr std::size_t longestShownLine = 400; // bytes, more than a card is wide

QRect inCard(const Rect& frame) {
    return flipped(frame, ScriptItemView::minimumSize)
        .translated(ScriptCard::padding, ScriptCard::padding);
}

/// The first lines, cut short: a script may have millions of them.
QStringList firstLines(std::string_view text, int count) {
    QStringList lines;
    while (!text.empty() && lines.size() < count) {
        const std::size_t end = std::min(text.find('\n'), text.size());
        const std::string_view line = text.substr(0, std::min(end, longestShownLine));
        lines += QString::fromUtf8(line.data(), static_cast<qsizetype>(line.size()))
                     .replace(u'\t', QLatin1String("    "))
                     .remove(u'\r');
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    if (!text.empty() && !lines.isEmpty())
        lines.last() += QChar(0x2026);
    return lines;
}

QString stringOf(const Record& record, std::string_view key) {
    const std::string* value = record ? record->contents().stringForKey(key) : nullptr;
    return value ? QString::fromStdString(*value) : QString();
}

} // namespace

QSize ScriptCard::minimumCardSize() {
    return {qRound(ScriptItemView::minimumSize.width) + 2 * padding,
            qRound(ScriptItemView::minimumSize.height) + 2 * padding};
}

ScriptCard::ScriptCard(QWidget* parent)
    : QWidget(parent),
      title_(new QLabel(this)),
      text_(new QLabel(this)),
      note_(new QLabel(this)),
      edit_(addButton({}, {})),
      run_(addButton(tr("Run"),
                     tr("Run this script once, now. The window waits until it has ended."))),
      remove_(addButton(tr("Remove"), tr("Delete this script and its file at once. This cannot be "
                                         "undone."))) {
    setMinimumSize(minimumCardSize());
    // Not that of the sheet and of the edit fields, which stand out against it.
    setBackgroundRole(QPalette::Window);
    for (QLabel* label : {title_, text_, note_})
        label->setTextFormat(Qt::PlainText);
    text_->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    title_->setGeometry(inCard(titleFrame));
    text_->setGeometry(inCard(textFrame));
    updateFonts();
    // The item is held: its operation may have it dropped.
    connect(edit_, &QPushButton::clicked, this, [this] {
        if (const auto item = item_)
            item->edit();
    });
    connect(run_, &QPushButton::clicked, this, [this] {
        if (const auto item = item_)
            item->execute();
    });
    connect(remove_, &QPushButton::clicked, this, [this] { emit removeRequested(this); });
}

QPushButton* ScriptCard::addButton(const QString& text, const QString& toolTip) {
    auto* button = new QPushButton(text, this);
    button->setToolTip(toolTip);
    button->setAutoDefault(false);
    return button;
}

void ScriptCard::bind(std::shared_ptr<ZVScriptCollectionItem> item) {
    unbind();
    item_ = std::move(item);
    const Size size = ScriptItemView::minimumSize;
    item_->view().setFrame({0, 0, size.width, size.height});
    if (const Record& record = item_->representedObject())
        recordEdits_ = record->observeEdits([this] { showRecord(); });
    showRecord();
    fieldChanges_ = item_->view().subviewsProperty().observe(
        [this](const ScriptItemView::Subviews& fields, Transition) { showFields(fields); });
    noteChanges_ = item_->noteProperty().observe(
        [this](const ScriptNote& note, Transition) { showNote(note); });
}

void ScriptCard::unbind() {
    recordEdits_.cancel();
    fieldChanges_.cancel();
    noteChanges_.cancel();
    editors_.clear();
    item_.reset();
}

void ScriptCard::showRecord() {
    if (!item_)
        return;
    const Record& record = item_->representedObject();
    const QString title = stringOf(record, script::title);
    const std::string* text = record ? record->contents().stringForKey(script::text) : nullptr;
    showTitle(title);
    showText(text ? std::string_view(*text) : std::string_view());
    setAccessibleName(tr("Script “%1”").arg(title));
    run_->setAccessibleName(tr("Run “%1”").arg(title));
    remove_->setAccessibleName(tr("Remove “%1”").arg(title));
    showEditing(!editors_.empty());
}

void ScriptCard::showTitle(const QString& title) {
    QString line = title;
    line.replace(u'\n', QChar(0x21B5));
    title_->setText(title_->fontMetrics().elidedText(line, Qt::ElideRight, title_->width()));
    title_->setToolTip(title_->text() == title ? QString() : title.toHtmlEscaped());
    title_->setAccessibleName(title);
}

void ScriptCard::showText(std::string_view text) {
    const QFontMetrics metrics = text_->fontMetrics();
    QStringList lines = firstLines(text, std::max(1, text_->height() / metrics.lineSpacing()));
    for (QString& line : lines)
        line = metrics.elidedText(line, Qt::ElideRight, text_->width());
    text_->setForegroundRole(text.empty() ? QPalette::PlaceholderText : QPalette::WindowText);
    text_->setText(text.empty() ? tr("This script is empty.") : lines.join(u'\n'));
}

void ScriptCard::showFields(const ScriptItemView::Subviews& fields) {
    const bool hadFocus = hasFocusWithin();
    const bool wasEditing = !editors_.empty();
    const bool fieldHadFocus = std::ranges::any_of(
        editors_, [](const auto& editor) { return editor->widget()->hasFocus(); });
    std::erase_if(editors_, [&fields](const auto& editor) {
        return std::ranges::none_of(
            fields, [&editor](const auto& field) { return field.get() == editor->field(); });
    });
    for (const auto& field : fields) {
        if (std::ranges::any_of(
                editors_, [&field](const auto& editor) { return editor->field() == field.get(); }))
            continue;
        editors_.push_back(std::make_unique<ScriptFieldEditor>(field, this));
        QWidget* widget = editors_.back()->widget();
        widget->setGeometry(inCard(field->frame()));
        widget->show();
        widget->raise();
    }
    const bool editing = !editors_.empty();
    showEditing(editing);
    emit focusChainChanged();
    if (hadFocus && editing && !wasEditing)
        editors_.back()->widget()->setFocus(Qt::TabFocusReason); // selects the title
    else if (fieldHadFocus && !editing)
        edit_->setFocus(Qt::OtherFocusReason);
}

void ScriptCard::showEditing(bool editing) {
    title_->setVisible(!editing);
    text_->setVisible(!editing);
    edit_->setText(editing ? tr("Done") : tr("Edit"));
    edit_->setToolTip(editing ? tr("Save the title and the text.")
                              : tr("Edit the title and the text in place."));
    edit_->setAccessibleName(
        (editing ? tr("Save “%1”") : tr("Edit “%1”")).arg(title_->accessibleName()));
    placeButtons();
}

void ScriptCard::showNote(const ScriptNote& note) {
    const QString reason = QString::fromStdString(note.reason);
    note_->setText(QString::fromStdString(note.caption));
    // Names of files are no markup.
    note_->setToolTip(reason.isEmpty() ? reason : "<p>" + reason.toHtmlEscaped() + "</p>");
    note_->setAccessibleDescription(reason);
    note_->setVisible(!note.caption.empty());
}

bool ScriptCard::hasFocusWithin() const {
    const QWidget* focused = focusWidget();
    return focused && focused->hasFocus();
}

std::vector<QWidget*> ScriptCard::focusChain() const {
    std::vector<QWidget*> chain;
    // The last field lies on top and is the first to be filled in.
    for (auto editor = editors_.rbegin(); editor != editors_.rend(); ++editor)
        chain.push_back((*editor)->widget());
    chain.insert(chain.end(), {edit_, run_, remove_});
    return chain;
}

void ScriptCard::placeButtons() {
    const QRect band = inCard(buttonBand);
    int right = width() - padding;
    for (QPushButton* button : {remove_, run_, edit_}) {
        const int width = button->sizeHint().width();
        button->setGeometry(right - width, band.top(), width, band.height());
        right -= width + buttonGap;
    }
    const int left = inCard(titleFrame).left();
    note_->setGeometry(left, band.top(), std::max(0, right - left), band.height());
}

void ScriptCard::updateFonts() {
    QFont titleFont = font();
    titleFont.setPixelSize(titleFontSize);
    titleFont.setWeight(QFont::DemiBold);
    title_->setFont(titleFont);
    QFont textFont = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    textFont.setPixelSize(textFontSize);
    text_->setFont(textFont);
}

void ScriptCard::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(palette().color(QPalette::Mid));
    painter.setBrush(palette().color(backgroundRole()));
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), cornerRadius,
                            cornerRadius);
}

void ScriptCard::resizeEvent(QResizeEvent* /*event*/) { placeButtons(); }

void ScriptCard::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange) {
        updateFonts();
        showRecord();
    }
}

} // namespace zarvil::qt
