#include "platform/Announcement.h"
#include "platform/SystemDesktop.h"
#include "support/ClockFixture.h"
#include "support/TestMain.h"

#include <QAccessible>

namespace
{
const QString kTea = QStringLiteral("Tea: Wuff!");

/// A window that announces.
struct Fixture : ClockFixture
{
    Fixture()
    {
        window.resize(200, 100);
        window.show();
    }

    [[nodiscard]] QList<Announcement *> all() const
    {
        return window.findChildren<Announcement *>();
    }
    [[nodiscard]] bool isInView() const { return all().constFirst()->isVisible(); }
    [[nodiscard]] QAccessibleInterface &seen() const
    {
        return *QAccessible::queryAccessibleInterface(all().constFirst());
    }

    QWidget window;
};

/// Counts how often a widget comes into view.
class Appearances final : public QObject
{
public:
    explicit Appearances(QWidget &widget) { widget.installEventFilter(this); }

    int count = 0;

    bool eventFilter(QObject * /*watched*/, QEvent *event) override
    {
        count += event->type() == QEvent::Show ? 1 : 0;
        return false;
    }
};
} // namespace

class tst_Announcement final : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void itIsANotificationNamedByItsText();
    void eachTextComesIntoViewOnce();
    void itLeavesTheViewAfterAMoment();
    void aNewTextStaysInViewAsLong();
    void itTakesNoRoom();
    void nothingIsMadeWhileNoAssistiveProgramListens();
};

void tst_Announcement::itIsANotificationNamedByItsText()
{
    Fixture f;

    Announcement::say(f.window, kTea);

    QVERIFY(f.isInView());
    QCOMPARE(f.seen().role(), QAccessible::Notification);
    QCOMPARE(f.seen().text(QAccessible::Name), kTea);
    QVERIFY(!f.seen().state().invisible);
}

void tst_Announcement::eachTextComesIntoViewOnce()
{
    Fixture f;
    Announcement::say(f.window, kTea);
    const Appearances appearances(*f.all().constFirst());

    Announcement::say(f.window, QStringLiteral("Tea: Alarm ended"));
    QCOMPARE(appearances.count, 1);
    QCOMPARE(f.seen().text(QAccessible::Name), QStringLiteral("Tea: Alarm ended"));
    Announcement::say(f.window, QStringLiteral("Tea: Alarm ended"));

    QCOMPARE(appearances.count, 2);
    QCOMPARE(f.all().size(), 1);
}

void tst_Announcement::itLeavesTheViewAfterAMoment()
{
    Fixture f;

    Announcement::say(f.window, kTea);
    f.clock.advance(5);
    QVERIFY(f.isInView());
    f.clock.advance(6);

    QVERIFY(!f.isInView());
}

void tst_Announcement::aNewTextStaysInViewAsLong()
{
    Fixture f;

    Announcement::say(f.window, kTea);
    f.clock.advance(6);
    Announcement::say(f.window, kTea);
    f.clock.advance(6);

    QVERIFY(f.isInView());
}

void tst_Announcement::itTakesNoRoom()
{
    Fixture f;
    const QImage before = f.window.grab().toImage();

    Announcement::say(f.window, kTea);

    QVERIFY(f.all().constFirst()->size().isEmpty());
    QCOMPARE(f.window.grab().toImage(), before);
    QCOMPARE(f.window.childAt(0, 0), nullptr);
}

void tst_Announcement::nothingIsMadeWhileNoAssistiveProgramListens()
{
    Fixture f;
    SystemDesktop desktop;
    QVERIFY(!QAccessible::isActive());

    desktop.announce(f.window, kTea);

    QCOMPARE(f.all().size(), 0);
}

WUFFER_TEST(tst_Announcement)
#include "tst_Announcement.moc"
