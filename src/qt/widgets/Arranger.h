#pragma once

#include <QWidget>

#include <vector>

namespace zarvil::qt {

/// A widget that arranges its children itself, by width. Qt hears of their changes, also while all
/// is hidden, through a layout that only passes its questions on.
class Arranger : public QWidget {
    Q_OBJECT

public:
    explicit Arranger(QWidget* parent);

    [[nodiscard]] bool hasHeightForWidth() const override { return true; }

protected:
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    /// Gives the children their places within the present size.
    virtual void arrangeChildren() = 0;

    /// Those that take room: they are shown, or their room is kept.
    [[nodiscard]] std::vector<QWidget*> placedChildren() const;
    /// What a child would like, by the rules that hold on all pages. The dynamic property "digits"
    /// makes a field so many digits wider than its least width.
    [[nodiscard]] static QSize wishOf(const QWidget& child);
    [[nodiscard]] static int heightOf(const QWidget& child, int width);

private:
    class Layout;
};

/// Sets its children one after the other and wraps where they do not fit.
class Flow final : public Arranger {
    Q_OBJECT
    Q_PROPERTY(int gap READ gap WRITE setGap)

public:
    explicit Flow(QWidget* parent = nullptr);

    /// Between two in a line; a unit where it is negative.
    [[nodiscard]] int gap() const { return gap_; }
    void setGap(int gap);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;
    [[nodiscard]] int heightForWidth(int width) const override;

protected:
    void arrangeChildren() override;

private:
    int arrange(int width, bool apply) const;

    int gap_ = -1;
};

} // namespace zarvil::qt
