#pragma once

#include <QObject>
#include <QSocketNotifier>

#include <memory>

namespace zarvil::host {

/// Turns SIGTERM, SIGINT and SIGHUP into a Qt signal on the event loop. One at a time.
class UnixSignals final : public QObject {
    Q_OBJECT
public:
    UnixSignals();
    /// Gives the signals their default effect again.
    ~UnixSignals() override;

Q_SIGNALS:
    void endRequested();

private:
    std::unique_ptr<QSocketNotifier> notifier_;
};

} // namespace zarvil::host
