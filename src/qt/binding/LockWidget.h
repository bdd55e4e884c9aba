#pragma once

#include <QToolButton>

namespace zarvil {

/// The padlock of an authorization: shows its state in a picture and in words. It decides nothing;
/// a click asks for a change.
class LockWidget : public QToolButton {
    Q_OBJECT

public:
    explicit LockWidget(QWidget* parent = nullptr);

    /// One of `authorizationState`; the reason says why, and may be empty.
    void showState(int state, const QString& reason);

protected:
    void changeEvent(QEvent* event) override;

private:
    void redrawIcon();

    int state_ = 0;
};

} // namespace zarvil
