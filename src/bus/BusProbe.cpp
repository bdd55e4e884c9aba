#include "bus/BusProbe.h"

#include "protocol/NonCopyable.h"

#include <QByteArrayList>

#include <algorithm>
#include <poll.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace zarvil {

namespace {

/// The name of a bus's socket as the kernel takes it, an abstract one with a leading zero; empty
/// for another kind of address. Of several addresses the first counts, as for the bus library.
QByteArray socketName(const QByteArray& addresses) {
    const QByteArray address = addresses.split(';').first();
    if (!address.startsWith("unix:"))
        return {};
    for (const QByteArray& entry : address.mid(5).split(',')) {
        if (entry.startsWith("path="))
            return QByteArray::fromPercentEncoding(entry.mid(5));
        if (entry.startsWith("abstract="))
            return '\0' + QByteArray::fromPercentEncoding(entry.mid(9));
    }
    return {};
}

class Socket : NonCopyable {
public:
    Socket() : handle_(socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0)) {}
    ~Socket() {
        if (handle_ >= 0)
            close(handle_);
    }

    bool connectTo(const QByteArray& name) const {
        sockaddr_un address{};
        address.sun_family = AF_UNIX;
        if (static_cast<std::size_t>(name.size()) >= sizeof address.sun_path)
            return false;
        std::ranges::copy(name, address.sun_path);
        const auto length = offsetof(sockaddr_un, sun_path) + static_cast<std::size_t>(name.size());
        return connect(handle_, reinterpret_cast<const sockaddr*>(&address),
                       static_cast<socklen_t>(length)) == 0;
    }
    /// Asks which ways to authenticate the bus knows, the one question that needs no permission.
    bool isAnswered(std::chrono::milliseconds limit) const {
        constexpr char question[] = "\0AUTH\r\n";
        if (send(handle_, question, sizeof question - 1, MSG_NOSIGNAL) < 0)
            return true;
        pollfd waiting{handle_, POLLIN, 0};
        return poll(&waiting, 1, static_cast<int>(limit.count())) != 0;
    }

private:
    int handle_;
};

} // namespace

QByteArray sessionBusAddress() {
    const QByteArray given = qgetenv("DBUS_SESSION_BUS_ADDRESS");
    return given.isEmpty() ? "unix:path=" + qgetenv("XDG_RUNTIME_DIR") + "/bus" : given;
}

QByteArray systemBusAddress() {
    const QByteArray given = qgetenv("DBUS_SYSTEM_BUS_ADDRESS");
    return given.isEmpty() ? "unix:path=/var/run/dbus/system_bus_socket" : given;
}

bool busAnswers(const QByteArray& address, std::chrono::milliseconds limit) {
    const QByteArray name = socketName(address);
    if (name.isEmpty())
        return true;
    const Socket bus;
    return !bus.connectTo(name) || bus.isAnswered(limit);
}

} // namespace zarvil
