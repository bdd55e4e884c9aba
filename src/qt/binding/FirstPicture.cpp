#include "qt/binding/FirstPicture.h"

#include <QWidget>

#include <chrono>

namespace zarvil::qt {

FirstPicture::FirstPicture(QWidget& view, const Property<bool>& looking)
    : view_(view), looking_(looking) {
    patience_.setSingleShot(true);
    patience_.callOnTimeout([this] { show(); });
}

void FirstPicture::putOff() {
    if (!looking_.get())
        return;
    constexpr std::chrono::milliseconds longest{30};
    patience_.start(longest);
    view_.setUpdatesEnabled(false);
    answered_ = looking_.observe([this](bool looking, Transition) {
        if (!looking)
            show();
    });
}

void FirstPicture::show() {
    patience_.stop();
    view_.setUpdatesEnabled(true);
}

} // namespace zarvil::qt
