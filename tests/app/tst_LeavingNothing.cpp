#include "app/WufferApplication.h"
#include "app/WufferController.h"
#include "support/TestMain.h"
#include "support/TestServices.h"
#include "support/TimerUser.h"

#include <QDir>

#include <array>
#include <atomic>

namespace
{
constexpr int kWindows = 150;

std::atomic<int> livingObjects;

using ObjectHook = void (*)(QObject *object);
} // namespace

// Qt's table of hooks for debuggers, which it calls whenever a QObject is created or destroyed.
extern Q_CORE_EXPORT quintptr qtHookData[];

namespace
{
/// Counts the objects of the whole process that are created and destroyed while the counter lives.
class ObjectCount final
{
public:
    ObjectCount()
    {
        livingObjects = 0;
        qtHookData[kAdded] = quintptr(ObjectHook([](QObject *) { ++livingObjects; }));
        qtHookData[kRemoved] = quintptr(ObjectHook([](QObject *) { --livingObjects; }));
    }
    ~ObjectCount()
    {
        qtHookData[kAdded] = 0;
        qtHookData[kRemoved] = 0;
    }
    Q_DISABLE_COPY_MOVE(ObjectCount)

    [[nodiscard]] int more() const { return livingObjects; }

private:
    // Indexes in the table of hooks.
    static constexpr int kAdded = 3;
    static constexpr int kRemoved = 4;
};

/// A running program that opens and closes one timer after the other.
class Program : public TestServices
{
public:
    Program()
    {
        defaults.setObject(QStringLiteral("Open a Wuffer"), QStringLiteral("launchBehavior"));
        controller.awakeFromNib();
    }

    /// Opens a timer, uses it in a way that depends on the number, and closes it.
    void openAndClose(int number)
    {
        controller.newWuffer();
        TimerUser user(*WufferApplication::getWuffers().back());
        user.typeDuration(0, 0, 1);
        const std::array<void (*)(TimerUser &), 6> uses{
            [](TimerUser &) {},
            [](TimerUser &each) { each.pressGo(); },
            [](TimerUser &each) { each.timer.showHideAdvanced(); },
            [](TimerUser &each) { each.timer.targetTime(); },
            [](TimerUser &each) {
                each.pressGo();
                each.timer.startStopFullScreen();
            },
            [](TimerUser &each) {
                each.timer.setTargetWuffer(WufferApplication::getWuffers().front());
                each.pressGo();
            }};
        uses.at(std::size_t(number) % uses.size())(user);
        // Of the timers that are started, every other one closes during its alarm.
        clock.advance(number % 2 == 0 ? 0.5 : 1.5);
        user.timer.window()->close();
        settle();
    }

    /// Writes the settings, as the program does a moment after each change.
    void write() { defaults.synchronize(); }

    static void settle()
    {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    WufferController controller;
};
} // namespace

/// Closed windows leave no objects and no open files behind, however they were used.
class tst_LeavingNothing final : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void objectsAreCounted();
    void manyClosedWindowsLeaveNothing();
    void writingTheSettingsLeavesNoFileOpen();
};

void tst_LeavingNothing::objectsAreCounted()
{
    const ObjectCount count;
    {
        const QObject parent;
        QCOMPARE(count.more(), 1);
    }
    QCOMPARE(count.more(), 0);
}

void tst_LeavingNothing::manyClosedWindowsLeaveNothing()
{
    Program program;
    // A first round creates the objects that the program makes once and keeps.
    for (int number = 0; number < 12; ++number)
        program.openAndClose(number);
    const auto widgets = QApplication::allWidgets().size();
    const auto windows = QApplication::topLevelWidgets().size();
    const ObjectCount objects;
    for (int number = 0; number < kWindows; ++number)
        program.openAndClose(number);
    QCOMPARE(objects.more(), 0);
    QCOMPARE(QApplication::allWidgets().size(), widgets);
    QCOMPARE(QApplication::topLevelWidgets().size(), windows);
    QCOMPARE(WufferApplication::getWuffers().size(), std::size_t(1));
    QVERIFY(program.clock.isIdle());
    QVERIFY(program.notifications.standing.empty());
    QVERIFY(!program.screenBlanking.isInhibited);
}

void tst_LeavingNothing::writingTheSettingsLeavesNoFileOpen()
{
    const QDir openFiles(QStringLiteral("/proc/self/fd"));
    if (!openFiles.exists())
        QSKIP("this system does not tell which files are open");
    Program program;
    program.write();
    const auto before = openFiles.count();
    for (int number = 0; number < 20; ++number) {
        program.defaults.setObject(number, QStringLiteral("gramsValue"));
        program.write();
    }
    QCOMPARE(QDir(openFiles.path()).count(), before);
}

WUFFER_TEST(tst_LeavingNothing)
#include "tst_LeavingNothing.moc"
