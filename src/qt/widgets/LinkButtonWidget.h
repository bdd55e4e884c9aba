#pragma once

#include "controls/ZVURLButton.h"
#include "interface/PointerTracker.h"

#include <QAbstractButton>

#include <memory>
#include <optional>
#include <vector>

namespace zarvil::qt {

/// Shows a button as a link of a web page: styled text, and a hand as the pointer while the window
/// is active. Space and Return press it.
class LinkButtonWidget : public QAbstractButton {
    Q_OBJECT

public:
    explicit LinkButtonWidget(QWidget* parent = nullptr);
    ~LinkButtonWidget() override;

    /// The model must outlive the widget or be replaced before it goes. Its styled title is shown,
    /// else its plain one, else the text that the layout gave the widget.
    void setModel(Button& model);
    [[nodiscard]] Button* model() const { return model_; }

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    class WidgetCursor;

    void followPointer(std::optional<QPointF> position);
    void showTitle();
    [[nodiscard]] TextAttributes titleLook() const;
    [[nodiscard]] QColor readable(const QColor& wanted) const;

    Button* model_ = nullptr;
    std::vector<Subscription> subscriptions_;
    std::unique_ptr<WidgetCursor> cursor_;
    std::unique_ptr<ZVURLButton> hover_; ///< decides what the pointer looks like
    std::optional<PointerTracker> tracker_;
};

} // namespace zarvil::qt
