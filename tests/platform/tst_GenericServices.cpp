#include "app/WufferApplication.h"
#include "app/WufferController.h"
#include "base/DesktopNotifications.h"
#include "platform/Keyboard.h"
#include "platform/KeyboardLayout.h"
#include "platform/PlatformServices.h"
#include "platform/SingleInstance.h"
#include "platform/StatusItem.h"
#include "platform/SystemLibraries.h"
#include "platform/WindowLevel.h"
#include "support/Menus.h"
#include "support/TestMain.h"
#include "support/TimerFixture.h"

#include <QApplication>
#include <QKeyEvent>
#include <QProcessEnvironment>
#include <QSystemTrayIcon>

/// What the services do on a system that has none of its own: nothing that harms.
class tst_GenericServices final : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void everyLaunchIsTheFirst();
    void theEnvironmentSaysNothingOfALaunch();
    void keysHaveNoNumbers();
    void aLetterAtThePlaceOfADigitIsNoPreset();
    void aWindowIsNotKeptOnTop();
    void preparingTheProcessChangesNoEnvironment();
    void notificationsAreNeverAnswered();
    void withoutATrayTheStatusItemShowsNothing();
    void noLibraryIsNamedThatIsNotLinked();
};

namespace
{
/// The program with one timer, which is active.
struct Program : TestServices
{
    Program()
    {
        controller.awakeFromNib();
        activate(*WufferApplication::getWuffers().front()->window());
    }

    WufferController controller;
};

QStringList environment()
{
    return QProcessEnvironment::systemEnvironment().toStringList();
}
} // namespace

void tst_GenericServices::everyLaunchIsTheFirst()
{
    SingleInstance first;
    SingleInstance second;
    QVERIFY(first.claim());
    QVERIFY(second.claim());
    QVERIFY(!second.forward(QStringLiteral("new-timer"), {}));
}

void tst_GenericServices::theEnvironmentSaysNothingOfALaunch()
{
    qputenv("DESKTOP_STARTUP_ID", "1234");
    const QVariantMap launch = SingleInstance::thisLaunch();
    qunsetenv("DESKTOP_STARTUP_ID");
    QCOMPARE(launch, QVariantMap());
}

void tst_GenericServices::keysHaveNoNumbers()
{
    const QKeyEvent press(QEvent::KeyPress, Qt::Key_Q, Qt::AltModifier, 16, 0, 0);
    QCOMPARE(KeyboardLayout::numberOf(press), 0U);
    QVERIFY(KeyboardLayout::symbolsOf(16, 0).empty());
}

void tst_GenericServices::aLetterAtThePlaceOfADigitIsNoPreset()
{
    const Program program;
    // Another system may give this letter the number that X11 gives a digit.
    for (const QEvent::Type type : {QEvent::ShortcutOverride, QEvent::KeyPress}) {
        QKeyEvent event(type, Qt::Key_Q, Keyboard::kCommand, 16, 0, 0, QStringLiteral("q"));
        QCoreApplication::sendEvent(QApplication::activeWindow()->windowHandle(), &event);
    }
    QCOMPARE(WufferApplication::getWuffers().size(), std::size_t(1));
}

void tst_GenericServices::aWindowIsNotKeptOnTop()
{
    const Program program;
    WufferWindow &window = *WufferApplication::getWuffers().front()->window();
    QVERIFY(!WindowLevel::canKeepOnTop());
    WindowLevel::keepOnTop(window, true);
    QVERIFY(!WindowLevel::isKeptOnTop(window));
    QVERIFY(!window.windowFlags().testFlag(Qt::WindowStaysOnTopHint));
}

void tst_GenericServices::preparingTheProcessChangesNoEnvironment()
{
    const QStringList before = environment();
    PlatformServices::prepareProcess();
    QCOMPARE(environment(), before);
}

void tst_GenericServices::notificationsAreNeverAnswered()
{
    const auto notifications = PlatformServices::desktopNotifications();
    int answers = 0;
    const auto answer = [&answers] { ++answers; };
    const DesktopNotification notification{
        .title = QStringLiteral("title"),
        .text = QStringLiteral("text"),
        .name = QStringLiteral("name"),
        .show = answer,
        .stop = answer,
        .closed = [&answers](DesktopNotification::End) { ++answers; }};
    notifications->notify(*this, notification);
    QCoreApplication::processEvents();
    notifications->withdraw(*this);
    QCOMPARE(answers, 0);
}

void tst_GenericServices::withoutATrayTheStatusItemShowsNothing()
{
    QVERIFY(!QSystemTrayIcon::isSystemTrayAvailable());
    const auto item = PlatformServices::statusItem();
    item->setTitle(QStringLiteral("5s "));
    QCoreApplication::processEvents();
    item->setTitle({});
    QCoreApplication::processEvents();
    QCOMPARE(QApplication::topLevelWindows(), QWindowList());
}

void tst_GenericServices::noLibraryIsNamedThatIsNotLinked()
{
    QCOMPARE(QString::fromLatin1(SystemLibraries::useOfQt()), QStringLiteral("windows"));
    QVERIFY(SystemLibraries::besideQt().empty());
}

WUFFER_TEST(tst_GenericServices)
#include "tst_GenericServices.moc"
