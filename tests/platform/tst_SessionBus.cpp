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

/// The end of a local socket.
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

    /// Lets others call, and never answers; only so many may wait for it.
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

/// Whether there is a session bus that is worth talking to.
class tst_SessionBus final : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void aBusThatIsNamedIsThere();
    void aBusThatIsNotNamedIsLookedForInItsUsualPlace();
    void whereThereIsNoBusNobodyLooksForOne();
    void aBusThatRefusesIsKept();
    void aBusThatDoesNotAnswerIsDoneWithout();
    void aBusThatTakesNobodyInIsDoneWithout();

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

void tst_SessionBus::whereThereIsNoBusNobodyLooksForOne()
{
    SessionBus::disableUnlessItAnswers();
    QVERIFY(!SessionBus::isPresent());
    // Libraries would look for one, and start it, where they are told nothing.
    QCOMPARE(qgetenv(kAddress), QByteArray("disabled:"));
}

void tst_SessionBus::aBusThatRefusesIsKept()
{
    const QByteArray address = "unix:path=" + usualPlace();
    qputenv(kAddress, address);
    SessionBus::disableUnlessItAnswers();
    QCOMPARE(qgetenv(kAddress), address);
}

void tst_SessionBus::aBusThatDoesNotAnswerIsDoneWithout()
{
    const Socket bus(usualPlace());
    QVERIFY(bus.listen(5));
    SessionBus::disableUnlessItAnswers();
    QVERIFY(!SessionBus::isPresent());
}

void tst_SessionBus::aBusThatTakesNobodyInIsDoneWithout()
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
