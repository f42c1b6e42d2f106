#include "rules/TimeFields.h"
#include "support/TestMain.h"

#include <QTest>

#include <limits>

namespace
{
constexpr qint32 kLargest = std::numeric_limits<qint32>::max();
constexpr qint32 kSmallest = std::numeric_limits<qint32>::min();
} // namespace

class tst_TimeFields final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void secondsAreTakenApart_data();
    void secondsAreTakenApart();
    void fieldsAddUpIn32Bits_data();
    void fieldsAddUpIn32Bits();
};

void tst_TimeFields::secondsAreTakenApart_data()
{
    QTest::addColumn<double>("time");
    QTest::addColumn<qint32>("hours");
    QTest::addColumn<qint32>("minutes");
    QTest::addColumn<float>("seconds");

    QTest::newRow("nothing") << 0.0 << 0 << 0 << 0.0F;
    QTest::newRow("a fraction stays with the seconds") << 65.4 << 0 << 1 << 5.4F;
    QTest::newRow("every part") << 3725.5 << 1 << 2 << 5.5F;
    QTest::newRow("hours are not carried into days") << 360000.0 << 100 << 0 << 0.0F;
    QTest::newRow("just before an hour") << 3599.5 << 0 << 59 << 59.5F;
    QTest::newRow("negative parts") << -3725.5 << -1 << -2 << -5.5F;
    QTest::newRow("too large") << 1e12 << 596523 << 14 << 7.0F;
    QTest::newRow("too small") << -1e12 << -596523 << -14 << -8.0F;
    QTest::newRow("not a number") << std::numeric_limits<double>::quiet_NaN() << 0 << 0 << 0.0F;
}

void tst_TimeFields::secondsAreTakenApart()
{
    QFETCH(const double, time);
    const TimeFields fields = TimeFields::fromSeconds(time);
    QTEST(fields.hours, "hours");
    QTEST(fields.minutes, "minutes");
    QTEST(fields.seconds, "seconds");
}

void tst_TimeFields::fieldsAddUpIn32Bits_data()
{
    QTest::addColumn<qint32>("hours");
    QTest::addColumn<qint32>("minutes");
    QTest::addColumn<qint32>("seconds");
    QTest::addColumn<qint32>("total");

    QTest::newRow("nothing") << 0 << 0 << 0 << 0;
    QTest::newRow("each its worth") << 1 << 2 << 5 << 3725;
    QTest::newRow("negative ones count") << 1 << -1 << -1 << 3539;
    QTest::newRow("the largest") << 596523 << 14 << 7 << kLargest;
    QTest::newRow("one more wraps round") << 596523 << 14 << 8 << kSmallest;
    QTest::newRow("the largest hours") << kLargest << 0 << 0 << -3600;
    QTest::newRow("the smallest of all") << kSmallest << kSmallest << kSmallest << kSmallest;
}

void tst_TimeFields::fieldsAddUpIn32Bits()
{
    QFETCH(const qint32, hours);
    QFETCH(const qint32, minutes);
    QFETCH(const qint32, seconds);
    QTEST(TimeFields::total(hours, minutes, seconds), "total");
}

WUFFER_TEST(tst_TimeFields, WithoutApplication)
#include "tst_TimeFields.moc"
