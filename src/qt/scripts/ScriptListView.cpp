#include "qt/scripts/ScriptListView.h"

#include "qt/scripts/ScriptCard.h"
#include "qt/widgets/MarginScrollBar.h"

#include <QAccessibleWidget>
#include <QApplication>
#include <QKeyEvent>
#include <QScrollBar>

#include <algorithm>

namespace zarvil::qt {

namespace {

constexpr int spacing = 8; // between cards
constexpr int fewestRows = 3;
constexpr int fewestCharacters = 24;

/// -1 for the row that went.
int rowAfterRemoval(int former, int removed) {
    if (former == removed)
        return -1;
    return former < removed ? former : former - 1;
}

int rowAfterMove(int former, int from, int to) {
    if (former == from)
        return to;
    if (from < to)
        return former > from && former <= to ? former - 1 : former;
    return former >= to && former < from ? former + 1 : former;
}

} // namespace

ScriptListView::ScriptListView(QWidget* parent) : QAbstractScrollArea(parent) {
    // The toolkit knows no role of a list for a scroll area.
    QAccessible::registerAccessibleInterface(new QAccessibleWidget(this, QAccessible::List));
    setFocusPolicy(Qt::StrongFocus);
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    MarginScrollBar::attachTo(*this);
    // The cards stand on the window's ground.
    viewport()->setAutoFillBackground(false);
    layoutTimer_.setSingleShot(true);
    layoutTimer_.setInterval(0);
    connect(&layoutTimer_, &QTimer::timeout, this, &ScriptListView::layOut);
}

ScriptListView::~ScriptListView() { rowChanges_.cancel(); }

void ScriptListView::setModel(CollectionView& model) {
    rowChanges_.cancel();
    renumber([](int) { return -1; });
    model_ = &model;
    addedSinceLayout_ = 0;
    rowChanges_ = model.observeRows([this](const RowChange& change) { rowsDidChange(change); });
    layoutTimer_.start();
}

int ScriptListView::rowCount() const { return model_ ? static_cast<int>(model_->rowCount()) : 0; }

void ScriptListView::rowsDidChange(const RowChange& change) {
    if (change.phase == RowChange::Phase::Before)
        return;
    const auto row = static_cast<int>(change.row);
    const auto to = static_cast<int>(change.to);
    switch (change.kind) {
    case RowChange::Kind::Inserted:
        renumber([row](int former) { return former < row ? former : former + 1; });
        ++addedSinceLayout_;
        lastAddedRow_ = row;
        break;
    case RowChange::Kind::Removed:
        noteFocus();
        renumber([row](int former) { return rowAfterRemoval(former, row); });
        break;
    case RowChange::Kind::Moved:
        renumber([row, to](int former) { return rowAfterMove(former, row, to); });
        break;
    case RowChange::Kind::Cleared:
        noteFocus();
        renumber([](int) { return -1; });
        addedSinceLayout_ = 0;
        break;
    case RowChange::Kind::Changed: // The card of the row watches it.
        return;
    }
    if (!layoutTimer_.isActive())
        layoutTimer_.start();
}

void ScriptListView::noteFocus() {
    if (const int row = rowOf(QApplication::focusWidget()); row >= 0)
        focusedRow_ = row;
}

/// A card that went with the keyboard leaves it to the one in its place, as soon as there is one.
void ScriptListView::returnFocus() {
    if (!hasFocus())
        focusedRow_ = -1;
    if (focusedRow_ < 0 || rowCount() == 0)
        return;
    const int row = std::min(std::exchange(focusedRow_, -1), rowCount() - 1);
    scrollToRow(row);
    if (const auto shown = cards_.find(row); shown != cards_.end())
        shown->second->takeFocus();
}

void ScriptListView::renumber(const std::function<int(int)>& rowNow) {
    std::map<int, ScriptCard*> cards;
    for (const auto& [former, card] : std::exchange(cards_, {})) {
        const int row = rowNow(former);
        if (row < 0)
            makeSpare(card);
        else
            cards.emplace(row, card);
    }
    cards_ = std::move(cards);
    std::map<int, int> heights;
    for (const auto& [former, height] : heights_) {
        if (const int row = rowNow(former); row >= 0)
            heights.emplace(row, height);
    }
    heights_ = std::move(heights);
}

/// A list that is not in sight waits until it is.
void ScriptListView::layOut() {
    layoutTimer_.stop();
    if (!isVisible())
        return;
    updateScrollBar();
    bindCards();
    placeCards();
    if (const int least = minimumSizeHint().height(); least != std::exchange(leastHeight_, least))
        updateGeometry();
    // One more script in a list that was shown before is one that the user has just made.
    const bool created = addedSinceLayout_ == 1 && rowCount() > 1;
    addedSinceLayout_ = 0;
    if (created)
        scrollToRow(lastAddedRow_);
    returnFocus();
}

void ScriptListView::updateScrollBar() {
    QScrollBar& bar = *verticalScrollBar();
    // Heights are measured when cards come into sight: the end stays the end.
    const bool atEnd = bar.value() > 0 && bar.value() == bar.maximum();
    const int height = rowCount() == 0 ? 0 : topOf(rowCount()) - spacing;
    adaptFocusPolicy();
    bar.setSingleStep(ScriptCard::typicalHeight(*this) / 4);
    bar.setPageStep(viewport()->height());
    bar.setRange(0, std::max(0, height - viewport()->height()));
    if (atEnd)
        bar.setValue(bar.maximum());
}

int ScriptListView::heightOf(int row) const {
    const auto measured = heights_.find(row);
    return measured == heights_.end() ? ScriptCard::typicalHeight(*this) : measured->second;
}

int ScriptListView::topOf(int row) const {
    const int typical = ScriptCard::typicalHeight(*this);
    int top = row * (typical + spacing);
    for (auto seen = heights_.begin(); seen != heights_.lower_bound(row); ++seen)
        top += seen->second - typical;
    return top;
}

/// The row whose card, or the gap below it, a place of the content lies in; at most the one behind
/// the last.
int ScriptListView::rowAt(int place) const {
    const int typical = ScriptCard::typicalHeight(*this) + spacing;
    int row = 0;
    int top = 0;
    for (const auto& [seen, height] : heights_) {
        const int seenTop = top + (seen - row) * typical;
        if (place < seenTop)
            break;
        row = seen;
        top = seenTop;
        if (place < top + height + spacing)
            return row;
        ++row;
        top += height + spacing;
    }
    return std::min(row + std::max(0, place - top) / typical, rowCount());
}

/// One card more at either end, so that Tab finds it there.
std::pair<int, int> ScriptListView::rowsInSight() const {
    const int margin = ScriptCard::typicalHeight(*this);
    const int above = verticalScrollBar()->value() - margin;
    const int below = verticalScrollBar()->value() + viewport()->height() + margin;
    return {rowAt(above), std::min(rowAt(below) + 1, rowCount())};
}

void ScriptListView::bindCards() {
    if (!model_)
        return;
    bool changed = false;
    const auto [first, end] = rowsInSight();
    for (auto shown = cards_.begin(); shown != cards_.end();) {
        const auto [row, card] = *shown;
        const bool keep = (row >= first && row < end) || card->hasFocusWithin();
        if (!keep)
            makeSpare(card);
        shown = keep ? std::next(shown) : cards_.erase(shown);
        changed = changed || !keep;
    }
    for (int row = first; row < end; ++row)
        changed = bindCard(row) || changed;
    for (const auto& [row, card] : cards_)
        heights_[row] = card->heightForWidth(viewport()->width());
    if (changed)
        updateTabOrder();
    updateScrollBar();
}

bool ScriptListView::bindCard(int row) {
    if (cards_.contains(row))
        return false;
    auto item = model_->itemAtRowAs<ZVScriptCollectionItem>(static_cast<std::size_t>(row));
    if (!item)
        return false;
    ScriptCard* card = takeSpare();
    cards_.emplace(row, card);
    card->bind(std::move(item));
    return true;
}

void ScriptListView::placeCards() {
    const int scrolled = verticalScrollBar()->value();
    for (const auto& [row, card] : cards_) {
        card->setGeometry(0, topOf(row) - scrolled, viewport()->width(), heightOf(row));
        card->show();
    }
}

void ScriptListView::updateTabOrder() {
    // Nothing can be put behind a widget that takes no focus.
    setFocusPolicy(Qt::StrongFocus);
    QWidget* previous = this;
    for (const auto& [row, card] : cards_) {
        for (QWidget* next : card->focusChain()) {
            setTabOrder(previous, next);
            previous = next;
        }
    }
    adaptFocusPolicy();
}

/// Its cards have the keyboard in a list that has any.
void ScriptListView::adaptFocusPolicy() {
    setFocusPolicy(rowCount() == 0 ? Qt::StrongFocus : Qt::NoFocus);
}

ScriptCard* ScriptListView::takeSpare() {
    if (!spares_.empty()) {
        ScriptCard* card = spares_.back();
        spares_.pop_back();
        return card;
    }
    auto* card = new ScriptCard(viewport());
    connect(card, &ScriptCard::focusChainChanged, this, &ScriptListView::updateTabOrder);
    connect(card, &ScriptCard::heightChanged, &layoutTimer_, qOverload<>(&QTimer::start));
    return card;
}

void ScriptListView::makeSpare(ScriptCard* card) {
    if (card->hasFocusWithin())
        setFocus(Qt::OtherFocusReason);
    card->unbind();
    card->hide();
    spares_.push_back(card);
}

int ScriptListView::rowOf(const QWidget* widget) const {
    const auto found = std::ranges::find_if(cards_, [widget](const auto& entry) {
        return widget && entry.second->isAncestorOf(widget);
    });
    return found == cards_.end() ? -1 : found->first;
}

void ScriptListView::scrollToRow(int row) {
    const int top = topOf(row);
    const int bottom = top + heightOf(row);
    QScrollBar& bar = *verticalScrollBar();
    if (top < bar.value())
        bar.setValue(top);
    else if (bottom > bar.value() + viewport()->height())
        bar.setValue(bottom - viewport()->height());
}

bool ScriptListView::focusNextPrevChild(bool next) {
    if (!QAbstractScrollArea::focusNextPrevChild(next))
        return false;
    if (const int row = rowOf(QApplication::focusWidget()); row >= 0)
        scrollToRow(row);
    return true;
}

void ScriptListView::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Home)
        verticalScrollBar()->setValue(0);
    else if (event->key() == Qt::Key_End)
        verticalScrollBar()->setValue(verticalScrollBar()->maximum());
    else
        QAbstractScrollArea::keyPressEvent(event);
}

void ScriptListView::showEvent(QShowEvent* event) {
    QAbstractScrollArea::showEvent(event);
    layOut();
}

void ScriptListView::resizeEvent(QResizeEvent* event) {
    QAbstractScrollArea::resizeEvent(event);
    layOut();
}

void ScriptListView::scrollContentsBy(int /*dx*/, int /*dy*/) {
    bindCards();
    placeCards();
}

QSize ScriptListView::minimumSizeHint() const {
    const int row = ScriptCard::typicalHeight(*this) + spacing;
    // An empty list has room for the words that say so.
    return {fontMetrics().averageCharWidth() * fewestCharacters,
            rowCount() == 0 ? row + row / 2 : std::min(topOf(rowCount()), fewestRows * row)};
}

QSize ScriptListView::sizeHint() const { return minimumSizeHint(); }

} // namespace zarvil::qt
