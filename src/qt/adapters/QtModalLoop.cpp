#include "qt/adapters/QtModalLoop.h"

#include <QEventLoop>

namespace zarvil {

void QtModalLoop::runModalForWindow(Panel& /*panel*/) {
    QEventLoop loop;
    running_.push_back(&loop);
    loop.exec();
    running_.pop_back();
}

void QtModalLoop::stopModal() {
    if (!running_.empty())
        running_.back()->quit();
}

} // namespace zarvil
