#pragma once

#include "protocol/Subscription.h"

#include <QListView>

namespace zarvil {
class CollectionView;
}

namespace zarvil::qt {

class DeviceListModel;

/// Shows the devices of one collection view, each with a check box that the user toggles by a
/// click or with Space. Without devices it shows a text instead.
class DeviceListView final : public QListView {
    Q_OBJECT
    Q_PROPERTY(QString emptyText READ emptyText WRITE setEmptyText)
    Q_PROPERTY(QString unknownText READ unknownText WRITE setUnknownText)

public:
    explicit DeviceListView(QWidget* parent = nullptr);

    /// The collection view is not owned and must outlive this view.
    void setModel(zarvil::CollectionView& view);

    /// What stands in a list without devices; tells the user what to do.
    [[nodiscard]] QString emptyText() const { return emptyText_; }
    void setEmptyText(const QString& text);
    /// The same while the list is dimmed: then nobody tells which devices there are.
    [[nodiscard]] QString unknownText() const { return unknownText_; }
    void setUnknownText(const QString& text);

protected:
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
    void paintEvent(QPaintEvent* event) override;

private:
    using QListView::setModel;

    void showWhetherEmpty();
    [[nodiscard]] bool isEmpty() const;
    /// What stands in place of devices; empty when there are some.
    [[nodiscard]] QString placeholder() const;

    QString emptyText_;
    QString unknownText_;
    bool dimmed_ = false;
    Subscription dimming_;
};

} // namespace zarvil::qt
