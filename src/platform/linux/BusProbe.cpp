#include "platform/linux/BusProbe.h"

#include <QByteArray>
#include <QFile>
#include <QList>

#include <algorithm>
#include <optional>
#include <poll.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace
{
constexpr int kTimeoutMs = 1000;

/// A socket that is closed at the end of its scope.
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

/// The name of the local socket in the address; one in the abstract name space begins with a zero
/// byte. Nothing for another kind of address.
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

/// The result of connecting without waiting. `Stuck` means that the listener's queue is full; such
/// a bus hangs, too.
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

/// Begins the handshake (D-Bus Specification, "Authentication Protocol"), which every working bus
/// answers. A closed connection counts as an answer.
bool isAnswered(int descriptor)
{
    const QByteArray greeting =
        QByteArray(1, '\0') + "AUTH EXTERNAL " + QByteArray::number(getuid()).toHex() + "\r\n";
    if (send(descriptor, greeting.constData(), std::size_t(greeting.size()), MSG_NOSIGNAL) < 0)
        return true;
    pollfd answer{.fd = descriptor, .events = POLLIN, .revents = 0};
    return poll(&answer, 1, kTimeoutMs) != 0;
}

/// What a process that wants to use the bus at an address finds.
enum class Found { NoBus, Silence, Answer, Unknown };

Found probe(const QByteArray &address)
{
    const std::optional<QByteArray> name = socketName(address);
    const Socket socket;
    if (!name || socket.descriptor() < 0)
        return Found::Unknown;
    switch (connectTo(*name, socket.descriptor())) {
    case Connection::Made:
        return isAnswered(socket.descriptor()) ? Found::Answer : Found::Silence;
    case Connection::Stuck:
        return Found::Silence;
    case Connection::Refused:
        break;
    }
    return Found::NoBus;
}
} // namespace

bool BusProbe::hangs(const QByteArray &address)
{
    return probe(address) == Found::Silence;
}

bool BusProbe::answers(const QByteArray &address)
{
    const Found found = probe(address);
    return found == Found::Answer || found == Found::Unknown;
}

QString BusProbe::socketFile(const QByteArray &address)
{
    const QByteArray name = socketName(address).value_or(QByteArray());
    return name.startsWith('/') ? QFile::decodeName(name) : QString();
}
