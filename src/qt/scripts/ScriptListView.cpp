#include "qt/scripts/ScriptListView.h"

#include "qt/scripts/ScriptCard.h"

#include <QApplication>
#include <QKeyEvent>
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

ScriptListView::ScriptListView(QWidget* parent) : QAbstractScrollArea(parent) {
    setFocusPolicy(Qt::StrongFocus);
    verticalScrollBar()->setSingleStep(rowHeight() / 4);
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
        if (!cards_.empty() && row <= cards_.rbegin()->first)
            renumber([row](int former) { return former < row ? former : former + 1; });
        ++addedSinceLayout_;
        lastAddedRow_ = row;
        break;
    case RowChange::Kind::Removed:
        renumber([row](int former) {
            return former == row ? -1 : former < row ? former : former - 1;
        });
        break;
    case RowChange::Kind::Moved:
        renumber([row, to](int former) {
            if (former == row)
                return to;
            if (row < to)
                return former > row && former <= to ? former - 1 : former;
            return former >= to && former < row ? former + 1 : former;
        });
        break;
    case RowChange::Kind::Cleared:
        renumber([](int) { return -1; });
        addedSinceLayout_ = 0;
        break;
    case RowChange::Kind::Changed: // The card of the row watches it.
        return;
    }
    if (!layoutTimer_.isActive())
        layoutTimer_.start();
}

void ScriptListView::renumber(const std::function<int(int)>& rowNow) {
    std::map<int, ScriptCard*> moved;
    for (const auto& [former, card] : std::exchange(cards_, {})) {
        const int row = rowNow(former);
        if (row < 0)
            makeSpare(card);
        else
            moved.emplace(row, card);
    }
    cards_ = std::move(moved);
}

void ScriptListView::layOut() {
    layoutTimer_.stop();
    updateScrollBars();
    bindCards();
    placeCards();
    // One more script in a list that was shown before is one that the user has just made.
    const bool created = addedSinceLayout_ == 1 && rowCount() > 1;
    addedSinceLayout_ = 0;
    if (created)
        scrollToRow(lastAddedRow_);
}

void ScriptListView::updateScrollBars() {
    const QSize sight = viewport()->size();
    const int height = rowCount() == 0 ? 0 : rowCount() * rowHeight() + spacing;
    verticalScrollBar()->setPageStep(sight.height());
    verticalScrollBar()->setRange(0, std::max(0, height - sight.height()));
    horizontalScrollBar()->setPageStep(sight.width());
    horizontalScrollBar()->setRange(
        0, rowCount() == 0 ? 0 : std::max(0, contentWidth() - sight.width()));
}

bool ScriptListView::isWanted(int row) const {
    const int top = verticalScrollBar()->value();
    const int first = top / rowHeight() - rowsBeyondSight;
    const int last = (top + viewport()->height()) / rowHeight() + rowsBeyondSight;
    return row >= first && row <= last && row < rowCount();
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
        auto item = model_->itemAtRowAs<ZVScriptCollectionItem>(static_cast<std::size_t>(row));
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
