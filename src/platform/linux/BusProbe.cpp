#include "platform/linux/BusProbe.h"

#include <QByteArray>
#include <QList>

#include <algorithm>
#include <optional>
#include <poll.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace
{
constexpr int kPatienceMs = 1000;

/// A descriptor that is closed with its scope.
class Socket final
{
public:
    Socket() : _descriptor(socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0)) {}
    ~Socket()
    {
        if (_descriptor >= 0)
            close(_descriptor);
    }
    Q_DISABLE_COPY_MOVE(Socket)

    [[nodiscard]] int descriptor() const { return _descriptor; }

private:
    int _descriptor;
};

/// The name of the local socket that the address names; one in the abstract name space begins with
/// a zero. Nothing for another kind of address.
std::optional<QByteArray> socketName(const QByteArray &address)
{
    const QByteArray first = address.split(';').constFirst();
    if (!first.startsWith("unix:"))
        return {};
    for (const QByteArray &pair : first.mid(5).split(',')) {
        if (pair.startsWith("path="))
            return QByteArray::fromPercentEncoding(pair.mid(5));
        if (pair.startsWith("abstract="))
            return '\0' + QByteArray::fromPercentEncoding(pair.mid(9));
    }
    return {};
}

/// Connects without waiting. A queue of callers that nobody takes in is a bus that hangs, too.
enum class Connection { Made, Refused, Stuck };

Connection connectTo(const QByteArray &name, int descriptor)
{
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    if (name.isEmpty() || std::size_t(name.size()) >= sizeof address.sun_path)
        return Connection::Refused;
    std::ranges::copy(name, address.sun_path);
    const auto length = static_cast<socklen_t>(offsetof(sockaddr_un, sun_path) +
                                               static_cast<std::size_t>(name.size()));
    if (connect(descriptor, reinterpret_cast<const sockaddr *>(&address), length) == 0)
        return Connection::Made;
    return errno == EAGAIN ? Connection::Stuck : Connection::Refused;
}

/// Begins the handshake (D-Bus Specification, "Authentication Protocol"), which is answered in any
/// case.
bool isAnswered(int descriptor)
{
    const QByteArray greeting =
        QByteArray(1, '\0') + "AUTH EXTERNAL " + QByteArray::number(getuid()).toHex() + "\r\n";
    if (send(descriptor, greeting.constData(), std::size_t(greeting.size()), MSG_NOSIGNAL) < 0)
        return true;
    pollfd answer{.fd = descriptor, .events = POLLIN, .revents = 0};
    return poll(&answer, 1, kPatienceMs) != 0;
}
} // namespace

bool BusProbe::hangs(const QByteArray &address)
{
    const std::optional<QByteArray> name = socketName(address);
    const Socket socket;
    if (!name || socket.descriptor() < 0)
        return false;
    switch (connectTo(*name, socket.descriptor())) {
    case Connection::Made:
        return !isAnswered(socket.descriptor());
    case Connection::Stuck:
        return true;
    case Connection::Refused:
        break;
    }
    return false;
}
