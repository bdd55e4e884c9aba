#pragma once

#include "interface/Symbol.h"

#include <QWidget>

QT_FORWARD_DECLARE_CLASS(QPainter)

namespace zarvil::qt {

/// Paints a symbol into a square, in colors of the palette: a shield in that of selections, all
/// else in `ink`. It is not mirrored for writing from right to left.
void paintSymbol(QPainter& painter, Symbol symbol, const QRectF& square, const QPalette& palette,
                 const QColor& ink);

/// Shows a symbol, `extent` pixels wide and high. Assistive programs do not hear of it.
class SymbolWidget final : public QWidget {
    Q_OBJECT
    Q_PROPERTY(int extent READ extent WRITE setExtent)

public:
    explicit SymbolWidget(QWidget* parent = nullptr);

    [[nodiscard]] Symbol symbol() const { return symbol_; }
    void setSymbol(Symbol symbol);
    [[nodiscard]] int extent() const { return extent_; }
    void setExtent(int extent);

    [[nodiscard]] QSize sizeHint() const override { return {extent_, extent_}; }
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    Symbol symbol_ = Symbol::None;
    int extent_ = 24;
};

} // namespace zarvil::qt
