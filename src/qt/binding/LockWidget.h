#pragma once

#include <QAbstractButton>

namespace zarvil::qt {

/// The line of an authorization's lock: what stands in it shows the state, a click asks for a
/// change. It decides nothing.
class LockWidget : public QAbstractButton {
    Q_OBJECT

public:
    explicit LockWidget(QWidget* parent = nullptr);

    /// Why the lock is as it is, for the tool tip; without a reason that of the layout stands.
    void setReason(const QString& reason);
    [[nodiscard]] QString reason() const { return reason_; }

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void placeChildren();

    QString reason_;
    QString designedToolTip_;
};

} // namespace zarvil::qt
