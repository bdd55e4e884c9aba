#pragma once

#include <QBasicTimer>
#include <QWidget>

namespace zarvil::qt {

/// A turning wheel. It costs nothing while it does not turn, and shows nothing then.
class Spinner : public QWidget {
    Q_OBJECT

public:
    explicit Spinner(QWidget* parent = nullptr);

    void setAnimating(bool animating);
    [[nodiscard]] bool isAnimating() const { return timer_.isActive(); }
    [[nodiscard]] QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void timerEvent(QTimerEvent* event) override;

private:
    QBasicTimer timer_;
    int step_ = 0;
};

} // namespace zarvil::qt
