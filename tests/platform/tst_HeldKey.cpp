#include "platform/HeldKey.h"
#include "support/TestMain.h"

#include <QKeyEvent>
#include <QtTest/QTest>

namespace
{
/// The press or release of the key with this scan code; the moment is in milliseconds.
class Event final : public QKeyEvent
{
public:
    Event(Type type, quint32 number, quint64 moment, bool repeats = false) :
        QKeyEvent(type, Qt::Key_1, Qt::AltModifier, number, 0, 0, QString(), repeats)
    {
        setTimestamp(moment);
    }
};
} // namespace

/// Which key events are presses, and which are repeats of a held key.
class tst_HeldKey final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aPressIsARepeatOrNot_data()
    {
        QTest::addColumn<quint32>("number");
        QTest::addColumn<quint64>("moment");
        QTest::addColumn<bool>("repeats");
        QTest::addColumn<bool>("expected");
        QTest::newRow("pressed anew") << 10U << quint64(1080) << false << false;
        QTest::newRow("released at the same moment") << 10U << quint64(1000) << false << true;
        QTest::newRow("another key at that moment") << 11U << quint64(1000) << false << false;
        QTest::newRow("known as a repeat") << 10U << quint64(1040) << true << true;
        QTest::newRow("of no keyboard") << 0U << quint64(1000) << false << false;
    }
    void aPressIsARepeatOrNot()
    {
        QFETCH(const quint32, number);
        QFETCH(const quint64, moment);
        QFETCH(const bool, repeats);
        HeldKey held;
        held.letGo(Event(QEvent::KeyRelease, 10, 1000));
        QTEST(held.isRepeatedBy(Event(QEvent::KeyPress, number, moment, repeats)), "expected");
    }

    void theFirstPressIsNoRepeat()
    {
        QVERIFY(!HeldKey().isRepeatedBy(Event(QEvent::KeyPress, 10, 0)));
    }

    void pressesOfNoKeyboardMayFollowAtTheSameMoment()
    {
        HeldKey held;
        held.letGo(Event(QEvent::KeyRelease, 0, 1000));
        QVERIFY(!held.isRepeatedBy(Event(QEvent::KeyPress, 0, 1000)));
    }
};

// Qt owns the keyboards of these presses through the application object.
WUFFER_TEST(tst_HeldKey)
#include "tst_HeldKey.moc"
