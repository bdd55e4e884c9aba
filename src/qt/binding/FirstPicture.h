#pragma once

#include "interface/Property.h"

#include <QTimer>

class QWidget;

namespace zarvil::qt {

/// Has a view shown with its agent's answer, which is milliseconds away, rather than for an instant
/// without it: the window has the ground's color so long. Both must outlive it.
class FirstPicture {
public:
    FirstPicture(QWidget& view, const Property<bool>& looking);
    FirstPicture(const FirstPicture&) = delete;
    FirstPicture& operator=(const FirstPicture&) = delete;

    /// Paints nothing from now on while the agent is being looked for, if it is, but not for long.
    void putOff();

private:
    void show();

    QWidget& view_;
    const Property<bool>& looking_;
    QTimer patience_;
    Subscription answered_;
};

} // namespace zarvil::qt
