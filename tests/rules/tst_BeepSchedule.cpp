#include "rules/BeepSchedule.h"
#include "support/TestMain.h"

#include <QTest>

class tst_BeepSchedule final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aBeepIsDueInTheLastTwelveSecondsASecondAfterTheLast_data();
    void aBeepIsDueInTheLastTwelveSecondsASecondAfterTheLast();
    void theVolumeRises_data();
    void theVolumeRises();
};

void tst_BeepSchedule::aBeepIsDueInTheLastTwelveSecondsASecondAfterTheLast_data()
{
    QTest::addColumn<double>("remaining");
    QTest::addColumn<double>("lastBeep");
    QTest::addColumn<bool>("due");

    QTest::newRow("twelve seconds are too early") << 12.0 << 100.0 << false;
    QTest::newRow("within twelve seconds") << 11.99 << 100.0 << true;
    QTest::newRow("less than a second after the last") << 11.0 << 11.99 << false;
    QTest::newRow("exactly a second after the last") << 10.5 << 11.5 << false;
    QTest::newRow("more than a second after the last") << 10.49 << 11.5 << true;
    QTest::newRow("at the very end") << 0.01 << 1.02 << true;
}

void tst_BeepSchedule::aBeepIsDueInTheLastTwelveSecondsASecondAfterTheLast()
{
    QFETCH(const double, remaining);
    QFETCH(const double, lastBeep);
    QTEST(BeepSchedule::isDue(remaining, lastBeep), "due");
}

void tst_BeepSchedule::theVolumeRises_data()
{
    QTest::addColumn<double>("remaining");
    QTest::addColumn<float>("volume");

    QTest::newRow("the first beep is silent") << 11.98 << 0.0F;
    QTest::newRow("just before eleven") << 11.001 << 0.0F;
    QTest::newRow("at eleven") << 11.0 << 1.0F * 0.03F;
    QTest::newRow("between eleven and ten") << 10.25 << 1.0F * 0.03F;
    QTest::newRow("below ten") << 9.0 << 2.0F * 0.03F;
    QTest::newRow("half way") << 5.5 << 5.5F * 0.03F;
    QTest::newRow("at the end") << 0.0 << 11.0F * 0.03F;
}

void tst_BeepSchedule::theVolumeRises()
{
    QFETCH(const double, remaining);
    QTEST(BeepSchedule::volume(remaining), "volume");
}

WUFFER_TEST(tst_BeepSchedule, WithoutApplication)
#include "tst_BeepSchedule.moc"
