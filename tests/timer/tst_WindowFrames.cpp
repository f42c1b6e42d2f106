#include "support/TestMain.h"
#include "support/TimerFixture.h"

#include <QScreen>

namespace
{
const QString kDefault = QStringLiteral("defaultWufferSettings");
const QString kPreset = QStringLiteral("Preset 3");
QVariantMap record(std::initializer_list<std::pair<QString, QVariant>> values)
{
    return QVariantMap(values);
}
} // namespace

/// Where a timer's window is placed when the timer loads a record.
class tst_WindowFrames final : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void theWindowComesBackToItsPlace();
    void theTimerOfTheLastTimeComesBackToItsPlace();
    void theWindowStaysWhereNoPlaceIsStored();
    void theWindowStaysWhenItIsNotToMove();
    void theWindowStaysWithoutARecord();
    void theWindowMovesOffAnother();
    void theWindowMovesOffEveryOther();
    void windowsAtEveryPlaceStopTheMoving();
    void aPlaceThatIsGoneComesBackIntoSight();
    void junkForAPlaceIsIgnored();
    void theWindowIsShownInAnyCase();

private:
    static QPoint place(const TimerUser &user) { return user.timer.window()->pos(); }
};

void tst_WindowFrames::theWindowComesBackToItsPlace()
{
    TimerFixture t;
    t.timer.window()->move(120, 90);
    t.timer.storeSettingsInDefaultsWithKey(kPreset);
    t.timer.window()->move(10, 20);
    t.timer.storeSettingsInDefaultsWithKey(kDefault);
    t.timer.window()->close();
    const TimerUser other;
    other.timer.loadSettingsFromDefaultsWithKey(kPreset, true);
    QCOMPARE(place(other), QPoint(120, 90));
}

void tst_WindowFrames::theWindowStaysWhereNoPlaceIsStored()
{
    TimerFixture t;
    t.defaults.setObject(record({{QStringLiteral("minutes"), 4}}), kPreset);
    t.timer.window()->move(120, 90);
    t.timer.loadSettingsFromDefaultsWithKey(kPreset, true);
    QCOMPARE(place(t), QPoint(120, 90));
}

void tst_WindowFrames::theWindowStaysWhenItIsNotToMove()
{
    TimerFixture t;
    t.timer.window()->move(120, 90);
    t.timer.storeSettingsInDefaultsWithKey(kPreset);
    t.timer.window()->move(50, 60);
    const TimerUser other;
    other.timer.window()->move(50, 60);
    t.timer.loadSettingsFromDefaultsWithKey(kPreset, false);
    QCOMPARE(place(t), QPoint(50, 60));
}

void tst_WindowFrames::theWindowStaysWithoutARecord()
{
    TimerFixture t;
    t.timer.window()->move(120, 90);
    t.timer.storeSettingsInDefaultsWithKey(kPreset);
    t.defaults.removeObjectForKey(kPreset);
    t.timer.window()->move(50, 60);
    t.timer.loadSettingsFromDefaultsWithKey(kPreset, true);
    QCOMPARE(place(t), QPoint(50, 60));
}

void tst_WindowFrames::theWindowMovesOffAnother()
{
    TimerFixture t;
    t.timer.window()->move(120, 90);
    t.timer.storeSettingsInDefaultsWithKey(kPreset);
    const TimerUser other;
    other.timer.loadSettingsFromDefaultsWithKey(kPreset, true);
    const QPoint step = place(other) - place(t);
    QVERIFY(step.x() > 10 && step.x() < 60);
    QCOMPARE(step.x(), step.y());
}

void tst_WindowFrames::theWindowMovesOffEveryOther()
{
    const TimerFixture t;
    t.timer.window()->move(120, 90);
    t.timer.storeSettingsInDefaultsWithKey(kPreset);
    const TimerUser second;
    const TimerUser third;
    second.timer.loadSettingsFromDefaultsWithKey(kPreset, true);
    third.timer.loadSettingsFromDefaultsWithKey(kPreset, true);
    QCOMPARE(place(third) - place(second), place(second) - place(t));
}

void tst_WindowFrames::windowsAtEveryPlaceStopTheMoving()
{
    const TestServices services;
    // Fills every place of a cascade on this screen with a window.
    const TimerUser last;
    last.timer.window()->move(0, 0);
    last.timer.storeSettingsInDefaultsWithKey(kPreset);
    QList<QPoint> places;
    QPoint next(0, 0);
    do {
        places.append(next);
        const TimerUser user;
        next = user.timer.window()->cascadeTopLeftFromPoint(next);
        user.timer.window()->show();
    } while (next != QPoint(0, 0));
    QVERIFY(places.size() > 10);
    last.timer.loadSettingsFromDefaultsWithKey(kPreset, true);
    QVERIFY(last.timer.window()->isVisible());
    // The window has gone round the cascade until the limit of moves stopped it.
    constexpr int moves = 202;
    QCOMPARE(place(last), places.at(moves % places.size()));
}

void tst_WindowFrames::aPlaceThatIsGoneComesBackIntoSight()
{
    TimerFixture t;
    t.timer.window()->move(30000, -4000);
    t.timer.storeSettingsInDefaultsWithKey(kPreset);
    t.timer.loadSettingsFromDefaultsWithKey(kPreset, true);
    const QRect room = t.timer.window()->screen()->availableGeometry();
    const QRect frame(place(t), t.timer.window()->size());
    QVERIFY2(room.contains(frame), qPrintable(QDebug::toString(frame)));
}

void tst_WindowFrames::junkForAPlaceIsIgnored()
{
    TimerFixture t;
    t.timer.storeSettingsInDefaultsWithKey(kPreset);
    t.timer.window()->move(50, 60);
    for (const QVariant &junk :
         {QVariant(7), QVariant(QVariantList{1, 2}), QVariant(QVariantMap{{kPreset, 5}}),
          QVariant(QVariantMap{{kPreset, QVariantMap{{QStringLiteral("x"), 1}}}})}) {
        t.defaults.setObject(junk, QStringLiteral("windowFrames"));
        t.timer.loadSettingsFromDefaultsWithKey(kPreset, true);
        QCOMPARE(place(t), QPoint(50, 60));
    }
}

void tst_WindowFrames::theWindowIsShownInAnyCase()
{
    const TestServices services;
    for (const QString &key : {kDefault, kPreset}) {
        const TimerUser user;
        QVERIFY(!user.timer.window()->isVisible());
        user.timer.loadSettingsFromDefaultsWithKey(key, true);
        QVERIFY(QTest::qWaitForWindowActive(user.timer.window()));
    }
}

void tst_WindowFrames::theTimerOfTheLastTimeComesBackToItsPlace()
{
    TimerFixture t;
    t.timer.window()->move(120, 90);
    t.pressGo();
    t.timer.window()->close();
    const TimerUser other;
    other.timer.loadSettingsFromDefaultsWithKey(kDefault, true);
    QCOMPARE(place(other), QPoint(120, 90));
}

WUFFER_TEST(tst_WindowFrames)
#include "tst_WindowFrames.moc"
