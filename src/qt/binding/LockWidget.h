#pragma once

#include <QWidget>

class QLabel;
class QToolButton;

namespace zarvil::qt {

/// The padlock of an authorization: shows its state in a picture and in words, and beside it why
/// it is so. It decides nothing; a click asks for a change.
class LockWidget : public QWidget {
    Q_OBJECT

public:
    explicit LockWidget(QWidget* parent = nullptr);

    /// One of `authorizationState`; the reason may be empty.
    void showState(int state, const QString& reason);
    [[nodiscard]] QString reason() const;

Q_SIGNALS:
    void clicked();

protected:
    void changeEvent(QEvent* event) override;

private:
    void redrawIcon();

    QToolButton* lock_;
    QLabel* reason_;
    int state_ = 0;
};

} // namespace zarvil::qt
