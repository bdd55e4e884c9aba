#pragma once

#include "interface/CollectionView.h"
#include "protocol/Subscription.h"

#include <QAbstractScrollArea>
#include <QTimer>

#include <functional>
#include <map>
#include <vector>

namespace zarvil::qt {

class ScriptCard;

/// Shows a collection view of script items as a list of cards. Only the rows in sight, and the one
/// with the keyboard, have widgets, so that the cost of a list does not grow with its length.
class ScriptListView final : public QAbstractScrollArea {
    Q_OBJECT

public:
    explicit ScriptListView(QWidget* parent = nullptr);
    ~ScriptListView() override;

    /// The model's items are `ZVScriptCollectionItem`. Not owned; it must live as long as the list
    /// is used, or until the next model.
    void setModel(CollectionView& model);
    [[nodiscard]] int rowCount() const;
    void scrollToRow(int row);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    void showEvent(QShowEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;
    void keyPressEvent(QKeyEvent* event) override;
    bool focusNextPrevChild(bool next) override;

private:
    void rowsDidChange(const RowChange& change);
    void noteFocus();
    void returnFocus();
    /// Every card to the row that the former one has become; -1 where it went.
    void renumber(const std::function<int(int)>& rowNow);

    void layOut();
    void updateScrollBar();
    void bindCards();
    void placeCards();
    void updateTabOrder();
    void adaptFocusPolicy();
    bool bindCard(int row);
    [[nodiscard]] int heightOf(int row) const;
    /// In the content's coordinates, from the heights that are known so far.
    [[nodiscard]] int topOf(int row) const;
    [[nodiscard]] int rowAt(int place) const;
    /// The first one and the one behind the last.
    [[nodiscard]] std::pair<int, int> rowsInSight() const;
    [[nodiscard]] int rowOf(const QWidget* widget) const;
    ScriptCard* takeSpare();
    void makeSpare(ScriptCard* card);

    CollectionView* model_ = nullptr;
    std::map<int, int> heights_; ///< by row, of the cards that have been seen
    int leastHeight_ = 0;        ///< as the layout around knows it
    int addedSinceLayout_ = 0;
    int lastAddedRow_ = 0;
    int focusedRow_ = -1;              ///< of a card that went with the keyboard
    std::map<int, ScriptCard*> cards_; ///< by row
    std::vector<ScriptCard*> spares_;
    QTimer layoutTimer_; ///< gathers the changes of one turn of the event loop
    Subscription rowChanges_;
};

} // namespace zarvil::qt
