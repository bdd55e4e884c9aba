#include "qt/scripts/ScriptListView.h"

#include "qt/scripts/ScriptCard.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QScrollBar>
#include <QStyle>

#include <algorithm>

namespace zarvil::qt {

namespace {

constexpr int spacing = 8; // between cards and around them
constexpr int rowsOfSizeHint = 3;
constexpr int rowsBeyondSight = 1; // so that Tab finds the next card there

int rowHeight() { return ScriptCard::minimumCardSize().height() + spacing; }

int contentWidth() { return ScriptCard::minimumCardSize().width() + 2 * spacing; }

} // namespace

ScriptListView::ScriptListView(QWidget* parent)
    : QAbstractScrollArea(parent), emptyState_(new QLabel(viewport())) {
    setAccessibleName(tr("Scripts"));
    setFocusPolicy(Qt::StrongFocus);
    emptyState_->setAlignment(Qt::AlignCenter);
    emptyState_->setWordWrap(true);
    emptyState_->setForegroundRole(QPalette::PlaceholderText);
    verticalScrollBar()->setSingleStep(rowHeight() / 4);
    layoutTimer_.setSingleShot(true);
    layoutTimer_.setInterval(0);
    connect(&layoutTimer_, &QTimer::timeout, this, &ScriptListView::layOut);
    updateEmptyState();
}

ScriptListView::~ScriptListView() {
    contentChanges_.cancel();
    dimming_.cancel();
}

void ScriptListView::setModel(CollectionView& model) {
    contentChanges_.cancel();
    allRowsWentAway();
    model_ = &model;
    contentChanges_ =
        model.content().observe([this](const ListChange& change) { contentDidChange(change); });
    dimming_ = model.alphaProperty().observe([this](double, Transition) { updateEmptyState(); });
}

void ScriptListView::contentDidChange(const ListChange& change) {
    switch (change.kind) {
    case ListChange::Kind::Inserted: // always at the end
        ++rowCount_;
        ++addedSinceLayout_;
        break;
    case ListChange::Kind::Removed:
        rowWasRemoved(static_cast<int>(change.index));
        break;
    case ListChange::Kind::Cleared:
        allRowsWentAway();
        break;
    }
    layoutTimer_.start();
}

void ScriptListView::rowWasRemoved(int row) {
    --rowCount_;
    std::map<int, ScriptCard*> moved;
    for (const auto& [cardRow, card] : cards_) {
        if (cardRow == row)
            makeSpare(card);
        else
            moved.emplace(cardRow < row ? cardRow : cardRow - 1, card);
    }
    cards_ = std::move(moved);
}

void ScriptListView::allRowsWentAway() {
    for (const auto& [row, card] : std::exchange(cards_, {}))
        makeSpare(card);
    rowCount_ = 0;
    addedSinceLayout_ = 0;
    layoutTimer_.start();
}

void ScriptListView::removeScriptOf(ScriptCard* card) {
    // The next card moves under the pointer: a double click must not remove that one too.
    if (lastRemoval_.isValid() && !lastRemoval_.hasExpired(QApplication::doubleClickInterval()))
        return;
    if (const auto item = card->item()) {
        lastRemoval_.start();
        // Last: an alert may let the window, and this list with it, go.
        item->remove();
    }
}

void ScriptListView::layOut() {
    layoutTimer_.stop();
    updateScrollBars();
    updateEmptyState();
    bindCards();
    placeCards();
    // One more script in a list that was shown before is one that the user has just made.
    const bool created = addedSinceLayout_ == 1 && rowCount_ > 1;
    addedSinceLayout_ = 0;
    if (created)
        scrollToRow(rowCount_ - 1);
}

void ScriptListView::updateScrollBars() {
    const QSize sight = viewport()->size();
    const int height = rowCount_ == 0 ? 0 : rowCount_ * rowHeight() + spacing;
    verticalScrollBar()->setPageStep(sight.height());
    verticalScrollBar()->setRange(0, std::max(0, height - sight.height()));
    horizontalScrollBar()->setPageStep(sight.width());
    horizontalScrollBar()->setRange(
        0, rowCount_ == 0 ? 0 : std::max(0, contentWidth() - sight.width()));
}

void ScriptListView::setSwitchedOn(bool on) {
    switchedOn_ = on;
    updateEmptyState();
}

void ScriptListView::updateEmptyState() {
    const bool dimmed = model_ && model_->alphaValue() < alpha::active;
    emptyState_->setText(
        switchedOn_ && !dimmed
            ? tr("No scripts yet. Type a title and create your first one.")
            : tr("Your scripts are listed here while Zarvil runs and scripts are switched on."));
    emptyState_->setVisible(rowCount_ == 0);
    emptyState_->setGeometry(viewport()->rect().adjusted(spacing, spacing, -spacing, -spacing));
}

bool ScriptListView::isWanted(int row) const {
    const int top = verticalScrollBar()->value();
    const int first = top / rowHeight() - rowsBeyondSight;
    const int last = (top + viewport()->height()) / rowHeight() + rowsBeyondSight;
    return row >= first && row <= last && row < rowCount_;
}

void ScriptListView::bindCards() {
    if (!model_)
        return;
    bool changed = false;
    for (auto shown = cards_.begin(); shown != cards_.end();) {
        const auto [row, card] = *shown;
        const bool keep = isWanted(row) || card->hasFocusWithin();
        if (!keep)
            makeSpare(card);
        shown = keep ? std::next(shown) : cards_.erase(shown);
        changed = changed || !keep;
    }
    const int first = verticalScrollBar()->value() / rowHeight() - rowsBeyondSight;
    for (int row = std::max(0, first); isWanted(row); ++row) {
        if (cards_.contains(row))
            continue;
        auto item = model_->itemAtIndexAs<ZVScriptCollectionItem>(static_cast<std::size_t>(row));
        if (!item)
            continue;
        ScriptCard* card = takeSpare();
        cards_.emplace(row, card);
        card->bind(std::move(item));
        changed = true;
    }
    if (changed)
        updateTabOrder();
}

void ScriptListView::placeCards() {
    const int width = std::max(viewport()->width(), contentWidth()) - 2 * spacing;
    for (const auto& [row, card] : cards_) {
        card->setGeometry(spacing - horizontalScrollBar()->value(),
                          spacing + row * rowHeight() - verticalScrollBar()->value(), width,
                          ScriptCard::minimumCardSize().height());
        card->show();
    }
}

void ScriptListView::updateTabOrder() {
    QWidget* previous = this;
    for (const auto& [row, card] : cards_) {
        for (QWidget* next : card->focusChain()) {
            setTabOrder(previous, next);
            previous = next;
        }
    }
}

ScriptCard* ScriptListView::takeSpare() {
    if (!spares_.empty()) {
        ScriptCard* card = spares_.back();
        spares_.pop_back();
        return card;
    }
    auto* card = new ScriptCard(viewport());
    connect(card, &ScriptCard::removeRequested, this, &ScriptListView::removeScriptOf);
    connect(card, &ScriptCard::focusChainChanged, this, &ScriptListView::updateTabOrder);
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
    const int top = row * rowHeight();
    const int bottom = top + rowHeight() + spacing;
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

void ScriptListView::resizeEvent(QResizeEvent* event) {
    QAbstractScrollArea::resizeEvent(event);
    layOut();
}

void ScriptListView::scrollContentsBy(int /*dx*/, int /*dy*/) {
    bindCards();
    placeCards();
}

QSize ScriptListView::minimumSizeHint() const {
    const int frame = 2 * frameWidth();
    const int bar = style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, this);
    return {contentWidth() + frame + bar, rowHeight() + spacing + frame};
}

QSize ScriptListView::sizeHint() const {
    return minimumSizeHint() + QSize(0, (rowsOfSizeHint - 1) * rowHeight());
}

} // namespace zarvil::qt
