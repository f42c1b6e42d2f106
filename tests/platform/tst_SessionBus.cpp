#include "platform/linux/SessionBus.h"
#include "support/TestMain.h"

#include <QFile>
#include <QTemporaryDir>

#include <algorithm>
#include <array>
#include <optional>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>
#include <vector>

namespace
{
constexpr auto kAddress = "DBUS_SESSION_BUS_ADDRESS";

/// One end of a local socket.
class Socket final
{
public:
    explicit Socket(const QByteArray &path) :
        _end(::socket(AF_UNIX, SOCK_STREAM | SOCK_NONBLOCK, 0))
    {
        _address.sun_family = AF_UNIX;
        std::ranges::copy(path, std::begin(_address.sun_path));
    }
    ~Socket() { ::close(_end); }
    Q_DISABLE_COPY_MOVE(Socket)

    /// Listens, but never accepts a connection. `waiting` is the length of the queue.
    [[nodiscard]] bool listen(int waiting) const
    {
        return ::bind(_end, address(), sizeof _address) == 0 && ::listen(_end, waiting) == 0;
    }
    [[nodiscard]] bool call() const { return ::connect(_end, address(), sizeof _address) == 0; }

private:
    [[nodiscard]] const sockaddr *address() const
    {
        return reinterpret_cast<const sockaddr *>(&_address);
    }

    int _end;
    sockaddr_un _address{};
};
} // namespace

/// Whether the program finds a session bus that answers.
class tst_SessionBus final : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void aBusThatIsNamedIsThere();
    void aBusThatIsNotNamedIsLookedForInItsUsualPlace();
    void aMissingBusIsDisabledForLibrariesToo();
    void aBusThatRefusesIsKept();
    void aBusThatDoesNotAnswerIsNotUsed();
    void aBusWithAFullQueueIsNotUsed();

private:
    [[nodiscard]] QByteArray usualPlace() const
    {
        return QFile::encodeName(_folder->filePath(QStringLiteral("bus")));
    }

    std::optional<QTemporaryDir> _folder;
};

void tst_SessionBus::init()
{
    Test::init();
    _folder.emplace();
    qunsetenv(kAddress);
    qputenv("XDG_RUNTIME_DIR", QFile::encodeName(_folder->path()));
}

void tst_SessionBus::aBusThatIsNamedIsThere()
{
    QVERIFY(!SessionBus::isPresent());
    qputenv(kAddress, "unix:path=/some/where");
    QVERIFY(SessionBus::isPresent());
}

void tst_SessionBus::aBusThatIsNotNamedIsLookedForInItsUsualPlace()
{
    const Socket bus(usualPlace());
    QVERIFY(bus.listen(1));
    QVERIFY(SessionBus::isPresent());
    qunsetenv("XDG_RUNTIME_DIR");
    QVERIFY(!SessionBus::isPresent());
}

void tst_SessionBus::aMissingBusIsDisabledForLibrariesToo()
{
    SessionBus::disableUnlessItAnswers();
    QVERIFY(!SessionBus::isPresent());
    // Without this address, libraries would look for a bus and start one.
    QCOMPARE(qgetenv(kAddress), QByteArray("disabled:"));
}

void tst_SessionBus::aBusThatRefusesIsKept()
{
    const QByteArray address = "unix:path=" + usualPlace();
    qputenv(kAddress, address);
    SessionBus::disableUnlessItAnswers();
    QCOMPARE(qgetenv(kAddress), address);
}

void tst_SessionBus::aBusThatDoesNotAnswerIsNotUsed()
{
    const Socket bus(usualPlace());
    QVERIFY(bus.listen(5));
    SessionBus::disableUnlessItAnswers();
    QVERIFY(!SessionBus::isPresent());
}

void tst_SessionBus::aBusWithAFullQueueIsNotUsed()
{
    const Socket bus(usualPlace());
    QVERIFY(bus.listen(0));
    const std::array<Socket, 3> others{Socket(usualPlace()), Socket(usualPlace()),
                                       Socket(usualPlace())};
    QVERIFY(!std::ranges::all_of(others, &Socket::call));
    qputenv(kAddress, "unix:path=" + usualPlace());
    SessionBus::disableUnlessItAnswers();
    QVERIFY(!SessionBus::isPresent());
}

WUFFER_TEST(tst_SessionBus)
#include "tst_SessionBus.moc"
