#pragma once

#include "controls/ZVMessageViewButton.h"
#include "interface/Button.h"

#include <QPushButton>

#include <vector>

namespace zarvil::qt {

/// A button of a message panel. It is a push button in all but its look: keys, the default of a
/// dialog, focus and what assistive technologies are told. High-contrast themes get a plain one.
class MessageButtonWidget : public QPushButton {
    Q_OBJECT

public:
    explicit MessageButtonWidget(QWidget* parent = nullptr);

    /// Presses go to the model; its title is shown unless it is empty. The model must outlive the
    /// widget or be replaced before it goes.
    void setModel(Button& model);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void paintRing(QPainter& painter) const;

    ZVMessageViewButton cell_;
    Button* model_ = nullptr;
    std::vector<Subscription> subscriptions_;
};

} // namespace zarvil::qt
