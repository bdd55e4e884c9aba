#pragma once

#include <QScrollBar>

class QAbstractScrollArea;

namespace zarvil::qt {

class Column;

/// Scrolls a list from beside it, in the margin of its column or the gap between two, so that the
/// list's rows keep the column's edges whether they scroll or not. Where there is no room the list
/// shows its own scroll bar.
class MarginScrollBar final : public QScrollBar {
    Q_OBJECT

public:
    /// For a list that stands in a column; another one keeps its own scroll bar.
    static void attachTo(QAbstractScrollArea& list);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    MarginScrollBar(QAbstractScrollArea& list, Column& column);
    void stand();
    void follow();

    QAbstractScrollArea& list_;
    Column& column_;
};

} // namespace zarvil::qt
