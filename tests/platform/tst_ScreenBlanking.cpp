#include "platform/linux/FreedesktopScreenBlanking.h"
#include "support/PrivateBus.h"
#include "support/RoundTrip.h"
#include "support/ScreenSaverService.h"
#include "support/TestMain.h"

#include <QElapsedTimer>
#include <QTemporaryDir>

#include <optional>

namespace
{
const QString kReason = QStringLiteral("to be read from afar");
const QString kAsked = QStringLiteral("inhibit Wuffer: to be read from afar");

/// Waits until all messages to and from the screen saver have arrived.
void settleWithScreenSaver()
{
    settleWith(QStringLiteral("org.freedesktop.ScreenSaver"));
}
} // namespace

/// Runs on a private session bus, where the test plays the desktop.
class tst_ScreenBlanking final : public Test
{
    Q_OBJECT

public:
    explicit tst_ScreenBlanking(const OnPrivateBus &surroundings) :
        _address(surroundings.bus().address())
    {}

private Q_SLOTS:
    void cleanup() { _screenSaver.reset(); }

    void theScreenSaverIsAskedAndReleased();
    void nothingIsAskedBefore();
    void twoAskersMakeOneRequestAndTheLastReleasesIt();
    void askingTwiceIsReleasedOnce();
    void aScreenSaverAtItsOldPathIsFound();
    void withoutAScreenSaverThePortalIsAskedAndReleased();
    void aReleaseBeforeTheAnswerReleasesWhenItComes();
    void anInhibitionWantedAgainBeforeTheAnswerIsKept();
    void aFrozenScreenSaverBlocksNothing();
    void aScreenSaverThatIsRestartedIsAskedAgain();
    void aRestartedScreenSaverGetsNoCookiesOfTheOldOne();
    void aScreenSaverThatIsRestartedBeforeItHasAnsweredIsAskedAgain();
    void withoutAScreenSaverOrAPortalNothingHappens();
    void withoutABusNothingIsAskedFor();

private:
    [[nodiscard]] ScreenSaverService &serve() { return _screenSaver.emplace(_address); }

    const QString _address;
    std::optional<ScreenSaverService> _screenSaver;
};

void tst_ScreenBlanking::theScreenSaverIsAskedAndReleased()
{
    const ScreenSaverService &server = serve();
    FreedesktopScreenBlanking blanking;
    const QObject asker;

    blanking.inhibit(asker, kReason);
    QTRY_COMPARE(server.diary, QStringList({kAsked}));
    // Waits for the answer.
    settleWithScreenSaver();
    blanking.release(asker);

    QTRY_COMPARE(server.diary, QStringList({kAsked, QStringLiteral("release 7")}));
}

void tst_ScreenBlanking::nothingIsAskedBefore()
{
    const ScreenSaverService &server = serve();
    FreedesktopScreenBlanking blanking;
    const QObject asker;
    blanking.release(asker);
    settleWithScreenSaver();
    QCOMPARE(server.diary, QStringList());
}

void tst_ScreenBlanking::twoAskersMakeOneRequestAndTheLastReleasesIt()
{
    const ScreenSaverService &server = serve();
    FreedesktopScreenBlanking blanking;
    const QObject one;
    const QObject other;

    blanking.inhibit(one, kReason);
    blanking.inhibit(other, kReason);
    QTRY_COMPARE(server.diary, QStringList({kAsked}));
    blanking.release(one);
    settleWithScreenSaver();
    QCOMPARE(server.diary, QStringList({kAsked}));
    blanking.release(other);

    QTRY_COMPARE(server.diary, QStringList({kAsked, QStringLiteral("release 7")}));
}

void tst_ScreenBlanking::askingTwiceIsReleasedOnce()
{
    const ScreenSaverService &server = serve();
    FreedesktopScreenBlanking blanking;
    const QObject asker;

    blanking.inhibit(asker, kReason);
    blanking.inhibit(asker, kReason);
    QTRY_COMPARE(server.diary.size(), 1);
    blanking.release(asker);
    blanking.release(asker);

    QTRY_COMPARE(server.diary.size(), 2);
    settleWithScreenSaver();
    QCOMPARE(server.diary.size(), 2);
}

void tst_ScreenBlanking::aScreenSaverAtItsOldPathIsFound()
{
    const ScreenSaverService server(_address, QStringLiteral("/ScreenSaver"));
    FreedesktopScreenBlanking blanking;
    const QObject asker;

    blanking.inhibit(asker, kReason);
    QTRY_COMPARE(server.diary, QStringList({kAsked}));
    blanking.release(asker);

    QTRY_COMPARE(server.diary, QStringList({kAsked, QStringLiteral("release 7")}));
}

void tst_ScreenBlanking::withoutAScreenSaverThePortalIsAskedAndReleased()
{
    const InhibitPortal portal(_address);
    const QString asked = QStringLiteral("inhibit 8: ") + kReason;
    FreedesktopScreenBlanking blanking;
    const QObject asker;

    blanking.inhibit(asker, kReason);
    QTRY_COMPARE(portal.diary, QStringList({asked}));
    blanking.release(asker);

    QTRY_COMPARE(portal.diary, QStringList({asked, QStringLiteral("release")}));
}

void tst_ScreenBlanking::aReleaseBeforeTheAnswerReleasesWhenItComes()
{
    ScreenSaverService &server = serve();
    FreedesktopScreenBlanking blanking;
    const QObject asker;
    server.stopAnswering();

    blanking.inhibit(asker, kReason);
    QTRY_COMPARE(server.heldBack(), 1U);
    blanking.release(asker);
    settleWithScreenSaver();
    QCOMPARE(server.diary, QStringList({kAsked}));
    server.answerAgain();

    QTRY_COMPARE(server.diary, QStringList({kAsked, QStringLiteral("release 7")}));
}

void tst_ScreenBlanking::anInhibitionWantedAgainBeforeTheAnswerIsKept()
{
    ScreenSaverService &server = serve();
    FreedesktopScreenBlanking blanking;
    const QObject asker;
    server.stopAnswering();

    blanking.inhibit(asker, kReason);
    blanking.release(asker);
    blanking.inhibit(asker, kReason);
    QTRY_COMPARE(server.heldBack(), 1U);
    server.answerAgain();
    settleWithScreenSaver();
    QCOMPARE(server.diary, QStringList({kAsked}));
    blanking.release(asker);

    QTRY_COMPARE(server.diary, QStringList({kAsked, QStringLiteral("release 7")}));
}

void tst_ScreenBlanking::aFrozenScreenSaverBlocksNothing()
{
    ScreenSaverService &server = serve();
    FreedesktopScreenBlanking blanking;
    const QObject asker;
    server.stopAnswering();
    QElapsedTimer elapsed;
    elapsed.start();

    for (int i = 0; i < 100; ++i) {
        blanking.inhibit(asker, kReason);
        blanking.release(asker);
    }

    QVERIFY(elapsed.elapsed() < 500);
    QTRY_COMPARE(server.heldBack(), 1U);
    settleWithScreenSaver();
    QCOMPARE(server.heldBack(), 1U);
}

void tst_ScreenBlanking::aScreenSaverThatIsRestartedIsAskedAgain()
{
    const ScreenSaverService &before = serve();
    FreedesktopScreenBlanking blanking;
    const QObject asker;
    blanking.inhibit(asker, kReason);
    QTRY_COMPARE(before.diary.size(), 1);
    settleWithScreenSaver();

    _screenSaver.reset();
    const ScreenSaverService &after = serve();

    QTRY_COMPARE(after.diary, QStringList({kAsked}));
    settleWithScreenSaver();
    blanking.release(asker);
    QTRY_COMPARE(after.diary, QStringList({kAsked, QStringLiteral("release 7")}));
}

void tst_ScreenBlanking::aRestartedScreenSaverGetsNoCookiesOfTheOldOne()
{
    const ScreenSaverService &before = serve();
    FreedesktopScreenBlanking blanking;
    const QObject asker;
    blanking.inhibit(asker, kReason);
    QTRY_COMPARE(before.diary.size(), 1);
    settleWithScreenSaver();

    _screenSaver.reset();
    ScreenSaverService &after = serve();
    after.stopAnswering();
    blanking.release(asker);

    // The new screen saver may get a request, but never the release of a cookie of the old one.
    settleWithScreenSaver();
    QVERIFY(!after.diary.contains(QStringLiteral("release 7")));
}

void tst_ScreenBlanking::withoutAScreenSaverOrAPortalNothingHappens()
{
    FreedesktopScreenBlanking blanking;
    const QObject asker;
    blanking.inhibit(asker, kReason);
    settleWithBus();
    blanking.release(asker);
    const ScreenSaverService &server = serve();
    settleWithScreenSaver();
    QCOMPARE(server.diary, QStringList());
}

void tst_ScreenBlanking::withoutABusNothingIsAskedFor()
{
    const ScreenSaverService &server = serve();
    FreedesktopScreenBlanking blanking;
    const QObject asker;
    const QTemporaryDir runtimeDir;
    qunsetenv("DBUS_SESSION_BUS_ADDRESS");
    qputenv("XDG_RUNTIME_DIR", runtimeDir.path().toUtf8());

    blanking.inhibit(asker, kReason);
    blanking.release(asker);
    settleWithScreenSaver();

    qputenv("DBUS_SESSION_BUS_ADDRESS", _address.toUtf8());
    QCOMPARE(server.diary, QStringList());
}

void tst_ScreenBlanking::aScreenSaverThatIsRestartedBeforeItHasAnsweredIsAskedAgain()
{
    ScreenSaverService &before = serve();
    FreedesktopScreenBlanking blanking;
    const QObject asker;
    before.stopAnswering();
    blanking.inhibit(asker, kReason);
    QTRY_COMPARE(before.heldBack(), 1U);

    _screenSaver.reset();
    const ScreenSaverService &after = serve();

    QTRY_COMPARE(after.diary, QStringList({kAsked}));
    settleWithScreenSaver();
    blanking.release(asker);
    QTRY_COMPARE(after.diary, QStringList({kAsked, QStringLiteral("release 7")}));
}

WUFFER_TEST(tst_ScreenBlanking, OnPrivateBus)
#include "tst_ScreenBlanking.moc"
