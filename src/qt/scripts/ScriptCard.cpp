#include "qt/scripts/ScriptCard.h"

#include "qt/text/ToolTip.h"
#include "qt/widgets/SymbolWidget.h"
#include "qt/widgets/Theme.h"

#include <QEvent>
#include <QFontDatabase>
#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QStringList>
#include <QStyle>

#include <algorithm>
#include <ranges>

namespace zarvil::qt {

namespace {

// In logical pixels. The fields stand at their frames from the card's lower left corner.
constexpr int sidePadding = 14;
constexpr int fieldPadding = 12; // at the right, where a card is too narrow for the frames
constexpr int topPadding = 9;
constexpr int bottomPadding = 12;
constexpr int buttonGap = 6;
constexpr int lineGap = 4;
constexpr int stateIcon = 16;
constexpr Rect captionFrame{15, 82, 490, 24};

constexpr double titleScale = 1.1;
constexpr double textScale = 0.95;
constexpr double mutedScale = 0.92;
constexpr int fewestTitleCharacters = 16;

void showCaption(QPushButton& button, const ButtonCaption& caption) {
    button.setText(QString::fromUtf8(caption.title));
    button.setToolTip(plainToolTip(QString::fromUtf8(caption.toolTip)));
    button.setAccessibleName(QString::fromUtf8(caption.accessibleName));
}

QLabel* makeLabel(QWidget* card) {
    auto* label = new QLabel(card);
    label->setTextFormat(Qt::PlainText);
    return label;
}

void setInk(QLabel& label, const QColor& ink) {
    QPalette palette = label.palette();
    palette.setColor(QPalette::WindowText, ink);
    label.setPalette(palette);
}

/// Its lines as far as they fit beside each other; the accessible name is the whole text.
void elide(QLabel& label) {
    QStringList lines = label.accessibleName().split(u'\n');
    for (QString& line : lines)
        line = label.fontMetrics().elidedText(line, Qt::ElideRight, label.width());
    label.setText(lines.join(u'\n'));
}

/// Of the whole text, however wide it is.
int heightOfLines(const QLabel& label) {
    const QString text = label.accessibleName();
    return text.isEmpty() ? 0 : label.fontMetrics().size(0, text).height();
}

QFont textFontOf(const QWidget& widget) {
    QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    font.setPointSizeF(widget.font().pointSizeF() > 0 ? widget.font().pointSizeF()
                                                      : font.pointSizeF());
    return theme::scaled(font, textScale);
}

} // namespace

int ScriptCard::typicalHeight(const QWidget& list) {
    const int lines = 2 * QFontMetrics(textFontOf(list)).lineSpacing();
    const int header = list.fontMetrics().height() + theme::unit(list) + lineGap;
    return topPadding + header + lineGap + lines + bottomPadding;
}

ScriptCard::ScriptCard(QWidget* parent)
    : QWidget(parent),
      title_(makeLabel(this)),
      hint_(makeLabel(this)),
      text_(makeLabel(this)),
      textCaption_(makeLabel(this)),
      state_(makeLabel(this)),
      cancel_(addButton(&ZVScriptCollectionItem::userDidPressCancel)),
      run_(addButton(&ZVScriptCollectionItem::userDidPressRun)),
      edit_(addButton(&ZVScriptCollectionItem::userDidPressEdit)),
      remove_(addButton(&ZVScriptCollectionItem::userDidPressRemove)) {
    text_->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    updateLook();
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
    observe();
    showItem();
}

void ScriptCard::observe() {
    if (const Record& record = item_->representedObject())
        changes_.push_back(record->observeEdits([this] { showItem(); }));
    changes_.push_back(item_->runningProperty().observe([this](bool, Transition) { showState(); }));
    changes_.push_back(
        item_->outcomeProperty().observe([this](const auto&, Transition) { showState(); }));
    changes_.push_back(
        item_->noteProperty().observe([this](const auto&, Transition) { showState(); }));
    changes_.push_back(item_->view().subviewsProperty().observe(
        [this](const ScriptItemView::Subviews& fields, Transition) { showFields(fields); }));
}

void ScriptCard::unbind() {
    changes_.clear();
    editors_.clear();
    item_.reset();
}

void ScriptCard::showItem() {
    if (!item_)
        return;
    setAccessibleName(QString::fromUtf8(item_->cardName()));
    title_->setAccessibleName(QString::fromUtf8(item_->shownTitle()));
    hint_->setText(QString::fromUtf8(item_->editingHint()));
    showCaption(*cancel_, item_->cancelCaption());
    textCaption_->setText(QString::fromUtf8(item_->textFieldName()));
    showCaption(*remove_, item_->removeCaption());
    QStringList lines;
    for (const std::string& line : item_->shownLines())
        lines += QString::fromUtf8(line);
    const bool empty = lines.isEmpty();
    text_->setFont(empty ? theme::scaled(font(), mutedScale) : textFontOf(*this));
    setInk(*text_, empty ? theme::mutedText(palette()) : palette().color(QPalette::WindowText));
    text_->setAccessibleName(empty ? QString::fromUtf8(item_->emptyText()) : lines.join(u'\n'));
    showState();
}

void ScriptCard::showState() {
    const ScriptState state = item_->shownState();
    const QString line = QString::fromUtf8(state.line);
    const QString reason = QString::fromUtf8(state.reason);
    state_->setAccessibleName(line);
    state_->setToolTip(plainToolTip(reason.isEmpty() ? line : reason));
    state_->setAccessibleDescription(reason);
    showCaption(*run_, item_->runCaption());
    showCaption(*edit_, item_->editCaption());
    run_->setEnabled(!item_->runningProperty().get());
    layOut();
    Q_EMIT heightChanged();
}

void ScriptCard::showFields(const ScriptItemView::Subviews& fields) {
    const bool hadFocus = hasFocusWithin();
    const bool wasEditing = isEditing();
    const bool losesFocus =
        cancel_->hasFocus() || std::ranges::any_of(editors_, [](const auto& editor) {
            return editor->widget()->hasFocus();
        });
    std::erase_if(editors_, [&fields](const auto& editor) {
        return std::ranges::none_of(
            fields, [&editor](const auto& field) { return field.get() == editor->field(); });
    });
    for (const auto& field : fields) {
        if (std::ranges::any_of(
                editors_, [&field](const auto& editor) { return editor->field() == field.get(); }))
            continue;
        editors_.push_back(std::make_unique<ScriptFieldEditor>(*item_, field, this));
        editors_.back()->widget()->show();
        editors_.back()->widget()->raise();
    }
    showState();
    Q_EMIT focusChainChanged();
    if (hadFocus && isEditing() && !wasEditing)
        editors_.back()->widget()->setFocus(Qt::TabFocusReason); // selects the title
    else if (losesFocus && !isEditing())
        edit_->setFocus(Qt::OtherFocusReason);
}

bool ScriptCard::hasFocusWithin() const {
    const QWidget* focused = focusWidget();
    return focused && focused->hasFocus();
}

void ScriptCard::takeFocus() { edit_->setFocus(Qt::OtherFocusReason); }

std::vector<QWidget*> ScriptCard::focusChain() const {
    std::vector<QWidget*> chain;
    // The last field lies on top and is the first to be filled in.
    for (auto editor = editors_.rbegin(); editor != editors_.rend(); ++editor)
        chain.push_back((*editor)->widget());
    // Last, for it drops what was typed.
    chain.insert(chain.end(), {run_, edit_, remove_, cancel_});
    return chain;
}

bool ScriptCard::buttonsStandBelow(int width) const {
    int room = width - 2 * sidePadding;
    for (const QPushButton* button : {run_, edit_, remove_})
        room -= theme::buttonSize(*button).width() + buttonGap;
    return room < theme::charactersWide(*this, fewestTitleCharacters);
}

/// Beside the title, from the right, or below it, in as many rows as they need. The buttons of
/// viewing stay where they are while editing.
std::vector<ScriptCard::Placed> ScriptCard::placedButtons(int width) const {
    const bool below = buttonsStandBelow(width);
    const int inner = std::max(0, width - 2 * sidePadding);
    std::vector<Placed> placed;
    int across = 0;
    int top = below ? topPadding + title_->sizeHint().height() + lineGap : topPadding;
    for (QPushButton* button : {run_, edit_, remove_, cancel_}) {
        if (button == cancel_ && !isEditing())
            continue;
        const QSize size = theme::buttonSize(*button).boundedTo({inner, QWIDGETSIZE_MAX});
        if (below && across > 0 && across + size.width() > inner) {
            across = 0;
            top += size.height() + buttonGap;
        }
        placed.push_back({button, {QPoint(sidePadding + across, top), size}});
        across += size.width() + buttonGap;
    }
    if (below)
        return placed;
    int right = width - sidePadding;
    if (isEditing())
        std::rotate(placed.begin(), placed.end() - 1, placed.end());
    // clang 14 does not know the library's reversed view of this type.
    for (auto each = placed.rbegin(); each != placed.rend(); ++each) {
        each->place.moveRight(right - 1);
        right = each->place.left() - buttonGap;
    }
    return placed;
}

int ScriptCard::headerHeight(int width) const {
    const int buttons = placedButtons(width).back().place.bottom() + 1 - topPadding;
    return std::max(buttons, title_->sizeHint().height());
}

int ScriptCard::heightForWidth(int width) const {
    const int header = topPadding + headerHeight(width);
    const int state = heightOfLines(*state_) > 0 ? lineGap + heightOfLines(*state_) : 0;
    if (isEditing())
        return header + lineGap + state + qRound(ScriptItemView::minimumSize.height);
    return header + lineGap + heightOfLines(*text_) + state + bottomPadding;
}

QRect ScriptCard::mirrored(const QRect& place) const {
    return QStyle::visualRect(layoutDirection(), rect(), place);
}

void ScriptCard::layOutHeader() {
    const std::vector<Placed> placed = placedButtons(width());
    for (const auto& [button, place] : placed)
        button->setGeometry(mirrored(place));
    const bool below = buttonsStandBelow(width());
    const int right = below ? width() - sidePadding : placed.front().place.left() - buttonGap;
    const int height = below ? title_->sizeHint().height() : headerHeight(width());
    const QRect line(sidePadding, topPadding, std::max(0, right - sidePadding), height);
    for (QLabel* label : {title_, hint_})
        label->setGeometry(mirrored(line));
    // Where reading begins in the window, whatever the text is written in.
    for (QLabel* label : {title_, hint_, state_})
        label->setAlignment(QStyle::visualAlignment(layoutDirection(), Qt::AlignLeft) |
                            Qt::AlignAbsolute | Qt::AlignVCenter);
    elide(*title_);
    title_->setToolTip(title_->text() == title_->accessibleName()
                           ? QString()
                           : plainToolTip(title_->accessibleName()));
    title_->setVisible(!isEditing());
    // Its buttons say it as well.
    hint_->setVisible(isEditing() && hint_->sizeHint().width() <= line.width());
    cancel_->setVisible(isEditing());
}

void ScriptCard::layOut() {
    layOutHeader();
    const int inner = std::max(0, width() - 2 * sidePadding);
    int top = topPadding + headerHeight(width()) + lineGap;
    text_->setGeometry(mirrored({sidePadding, top, inner, heightOfLines(*text_)}));
    elide(*text_);
    if (!isEditing())
        top += text_->height() + lineGap;
    const int indent = stateIcon + lineGap;
    state_->setGeometry(
        mirrored({sidePadding + indent, top, std::max(0, inner - indent), heightOfLines(*state_)}));
    elide(*state_);
    text_->setVisible(!isEditing());
    textCaption_->setVisible(isEditing());
    state_->setVisible(!state_->accessibleName().isEmpty());
    placeFields();
    update();
}

/// A frame keeps its place from the lower left; only its right edge gives way.
void ScriptCard::placeFields() {
    const auto place = [this](QWidget& widget, const Rect& frame) {
        const Size size{static_cast<double>(width()), static_cast<double>(height())};
        QRect shown = flipped(frame, size);
        shown.setRight(std::min(shown.right(), width() - fieldPadding));
        widget.setGeometry(shown);
    };
    place(*textCaption_, captionFrame);
    for (const auto& editor : editors_)
        place(*editor->widget(), editor->field()->frame());
}

void ScriptCard::updateLook() {
    const QFont muted = theme::scaled(font(), mutedScale);
    title_->setFont(theme::scaled(font(), titleScale, QFont::DemiBold));
    for (QLabel* label : {hint_, textCaption_}) {
        label->setFont(muted);
        setInk(*label, theme::mutedText(palette()));
    }
    // The band between the fields does not grow.
    QFont caption = muted;
    for (double factor = 1; QFontMetricsF(caption).height() > captionFrame.height; factor -= 0.05)
        caption = theme::scaled(muted, factor);
    textCaption_->setFont(caption);
}

void ScriptCard::keyPressEvent(QKeyEvent* event) {
    const auto item = item_;
    if (!isEditing() || !item || event->key() != Qt::Key_Escape) {
        QWidget::keyPressEvent(event);
        return;
    }
    if (item->holdsTypedText())
        cancel_->setFocus(Qt::OtherFocusReason);
    else
        item->userDidPressCancel();
}

void ScriptCard::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QColor ground = theme::cardGround(palette());
    painter.setPen(theme::outlineOn(palette(), ground));
    painter.setBrush(ground);
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), theme::cardRadius,
                            theme::cardRadius);
    theme::paintFieldOutlines(painter, *this);
    if (state_->isHidden())
        return;
    const int middle = state_->geometry().center().y();
    const QRect square = mirrored({sidePadding, middle - stateIcon / 2, stateIcon, stateIcon});
    paintSymbol(painter, item_->shownState().symbol, square, palette(),
                palette().color(QPalette::WindowText));
}

void ScriptCard::resizeEvent(QResizeEvent* /*event*/) { layOut(); }

void ScriptCard::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    const auto kind = event->type();
    if (kind == QEvent::FontChange || kind == QEvent::PaletteChange ||
        kind == QEvent::StyleChange) {
        updateLook();
        showItem();
    }
}

} // namespace zarvil::qt
