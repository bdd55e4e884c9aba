#pragma once

#include "platform/Cursor.h"

#include <QPointer>
#include <QWidget>

namespace zarvil {

/// The pointer's look over one widget. May outlive the widget.
class QtCursor final : public Cursor {
public:
    explicit QtCursor(QWidget& widget) : widget_(&widget) {}

    /// The arrow leaves the choice to the widget's parent again.
    void set(CursorShape shape) override;

private:
    QPointer<QWidget> widget_;
};

} // namespace zarvil
