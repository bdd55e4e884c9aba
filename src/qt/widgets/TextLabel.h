#pragma once

#include <QLabel>

namespace zarvil::qt {

/// A label in one of the pages' kinds of text. It wraps, paints its color from whatever palette
/// holds, and dims itself. Plain text only.
class TextLabel : public QLabel {
    Q_OBJECT
    Q_PROPERTY(Look look READ look WRITE setLook)
    Q_PROPERTY(bool elided READ isElided WRITE setElided)
    Q_PROPERTY(double opacity READ opacity WRITE setOpacity)

public:
    enum Look {
        Body,
        Title,   ///< a status or the product's name
        Heading, ///< of a section or a banner
        Muted,   ///< what a row does
        Quiet    ///< muted, in full size
    };
    Q_ENUM(Look)

    explicit TextLabel(QWidget* parent = nullptr);

    [[nodiscard]] Look look() const { return look_; }
    void setLook(Look look);
    /// One line that ends in an ellipsis where it does not fit, instead of several.
    [[nodiscard]] bool isElided() const { return elided_; }
    void setElided(bool elided);
    /// From 0 to 1.
    [[nodiscard]] double opacity() const { return opacity_; }
    void setOpacity(double opacity);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;
    [[nodiscard]] bool hasHeightForWidth() const override { return !elided_; }
    [[nodiscard]] int heightForWidth(int width) const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;
    [[nodiscard]] QFont textFont() const;
    [[nodiscard]] virtual QColor textColor() const;
    void paintText(QPainter& painter, const QRect& place) const;

private:
    [[nodiscard]] int textFlags() const;

    Look look_ = Body;
    bool elided_ = false;
    double opacity_ = 1;
};

/// A verdict: its text in a fixed color beside a symbol, on a ground that suits that color in
/// every theme. The symbol is the child of the class SymbolWidget.
class VerdictChip final : public TextLabel {
    Q_OBJECT

public:
    explicit VerdictChip(QWidget* parent = nullptr);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;
    [[nodiscard]] int heightForWidth(int width) const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    [[nodiscard]] QColor textColor() const override;

private:
    [[nodiscard]] QMargins padding() const;
};

} // namespace zarvil::qt
