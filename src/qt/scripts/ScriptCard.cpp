#include "qt/scripts/ScriptCard.h"

#include "qt/widgets/ToolTip.h"

#include <QEvent>
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

QRect inCard(const Rect& frame) {
    return flipped(frame, ScriptItemView::minimumSize)
        .translated(ScriptCard::padding, ScriptCard::padding);
}

void showCaption(QPushButton& button, const ButtonCaption& caption) {
    button.setText(QString::fromStdString(caption.title));
    button.setToolTip(plainToolTip(QString::fromStdString(caption.toolTip)));
    button.setAccessibleName(QString::fromStdString(caption.accessibleName));
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
      edit_(addButton(&ZVScriptCollectionItem::userDidPressEdit)),
      run_(addButton(&ZVScriptCollectionItem::userDidPressRun)),
      remove_(addButton(&ZVScriptCollectionItem::userDidPressRemove)) {
    setMinimumSize(minimumCardSize());
    // Not that of the sheet and of the edit fields, which stand out against it.
    setBackgroundRole(QPalette::Window);
    for (QLabel* label : {title_, text_, note_})
        label->setTextFormat(Qt::PlainText);
    text_->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    title_->setGeometry(inCard(titleFrame));
    text_->setGeometry(inCard(textFrame));
    updateFonts();
}

QPushButton* ScriptCard::addButton(void (ZVScriptCollectionItem::*press)()) {
    auto* button = new QPushButton(this);
    button->setAutoDefault(false);
    connect(button, &QPushButton::clicked, this, [this, press] {
        // Held, for its operation may have it dropped.
        if (const auto item = item_)
            (item.get()->*press)();
    });
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
    showTitle();
    showText();
    setAccessibleName(QString::fromStdString(item_->cardName()));
    showCaption(*run_, item_->runCaption());
    showCaption(*remove_, item_->removeCaption());
    showEditing(!editors_.empty());
}

void ScriptCard::showTitle() {
    const QString title = QString::fromStdString(item_->shownTitle());
    title_->setText(title_->fontMetrics().elidedText(title, Qt::ElideRight, title_->width()));
    title_->setToolTip(title_->text() == title ? QString() : plainToolTip(title));
    title_->setAccessibleName(title);
}

void ScriptCard::showText() {
    const QFontMetrics metrics = text_->fontMetrics();
    QStringList lines;
    for (const std::string& line : item_->shownLines())
        lines += metrics.elidedText(QString::fromStdString(line), Qt::ElideRight, text_->width());
    text_->setForegroundRole(lines.isEmpty() ? QPalette::PlaceholderText : QPalette::WindowText);
    text_->setText(lines.isEmpty() ? QString::fromStdString(item_->emptyText())
                                   : lines.join(u'\n'));
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
        editors_.push_back(std::make_unique<ScriptFieldEditor>(*item_, field, this));
        QWidget* widget = editors_.back()->widget();
        widget->setGeometry(inCard(field->frame()));
        widget->show();
        widget->raise();
    }
    const bool editing = !editors_.empty();
    showEditing(editing);
    Q_EMIT focusChainChanged();
    if (hadFocus && editing && !wasEditing)
        editors_.back()->widget()->setFocus(Qt::TabFocusReason); // selects the title
    else if (fieldHadFocus && !editing)
        edit_->setFocus(Qt::OtherFocusReason);
}

void ScriptCard::showEditing(bool editing) {
    title_->setVisible(!editing);
    text_->setVisible(!editing);
    showCaption(*edit_, item_->editCaption());
    placeButtons();
}

void ScriptCard::showNote(const ScriptNote& note) {
    const QString reason = QString::fromStdString(note.reason);
    note_->setText(QString::fromStdString(note.caption));
    note_->setToolTip(plainToolTip(reason));
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
