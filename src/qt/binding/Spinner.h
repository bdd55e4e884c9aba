#pragma once

#include <QBasicTimer>
#include <QWidget>

namespace zarvil::qt {

/// A turning ring. It costs nothing while it does not turn, and shows nothing then. Where the
/// desktop wants no motion it stands still instead.
class Spinner : public QWidget {
    Q_OBJECT
    Q_PROPERTY(bool hidesWhenIdle MEMBER hidesWhenIdle_ WRITE setHidesWhenIdle)

public:
    explicit Spinner(QWidget* parent = nullptr);

    void setAnimating(bool animating);
    [[nodiscard]] bool isAnimating() const { return animating_; }
    /// Takes no room either.
    void setHidesWhenIdle(bool hides);
    [[nodiscard]] QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void timerEvent(QTimerEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    void turnWhileSeen();

    bool animating_ = false;
    bool hidesWhenIdle_ = false;
    QBasicTimer timer_;
    int step_ = 0;
};

} // namespace zarvil::qt
