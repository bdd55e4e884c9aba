#pragma once

#include <QByteArray>
#include <QString>

#include <gtest/gtest.h>

#include <algorithm>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace zarvil {

/// Something at a bus's address that takes connections and never says a word. Closes them when it
/// goes.
class HungBus {
public:
    explicit HungBus(const QString& path) : address_("unix:path=" + path) {
        sockaddr_un name{};
        name.sun_family = AF_UNIX;
        const QByteArray bytes = path.toUtf8();
        EXPECT_LT(static_cast<std::size_t>(bytes.size()), sizeof name.sun_path);
        std::ranges::copy(bytes, name.sun_path);
        EXPECT_EQ(bind(socket_, reinterpret_cast<const sockaddr*>(&name), sizeof name), 0);
        EXPECT_EQ(listen(socket_, 5), 0);
    }
    ~HungBus() { close(socket_); }
    HungBus(const HungBus&) = delete;
    HungBus& operator=(const HungBus&) = delete;

    const QString& address() const { return address_; }

private:
    int socket_ = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    QString address_;
};

} // namespace zarvil
