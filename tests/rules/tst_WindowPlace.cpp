#include "rules/WindowPlace.h"
#include "support/TestMain.h"

/// Where windows are restored.
class tst_WindowPlace final : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void whatIsStoredReadsTheSame();
    void anInvalidPlaceReadsAsMissing_data();
    void anInvalidPlaceReadsAsMissing();
    void absurdNumbersAreLimited();
    void aWindowComesBackWhereItCanBeReached_data();
    void aWindowComesBackWhereItCanBeReached();
};

void tst_WindowPlace::whatIsStoredReadsTheSame()
{
    const QPoint place(-1200, 34);
    QCOMPARE(WindowPlace::fromRecord(WindowPlace::record(place)), std::optional(place));
}

void tst_WindowPlace::anInvalidPlaceReadsAsMissing_data()
{
    QTest::addColumn<QVariantMap>("record");
    QTest::newRow("nothing") << QVariantMap();
    QTest::newRow("half of one") << QVariantMap{{QStringLiteral("x"), 3}};
    QTest::newRow("texts") << QVariantMap{{QStringLiteral("x"), QStringLiteral("3")},
                                          {QStringLiteral("y"), QStringLiteral("4")}};
}

void tst_WindowPlace::anInvalidPlaceReadsAsMissing()
{
    QFETCH(const QVariantMap, record);
    QVERIFY(!WindowPlace::fromRecord(record));
}

void tst_WindowPlace::absurdNumbersAreLimited()
{
    const QVariantMap record{{QStringLiteral("x"), 1e300}, {QStringLiteral("y"), -1e300}};
    const QPoint place = WindowPlace::fromRecord(record).value();
    const QRect room(0, 0, 1000, 800);
    QCOMPARE(WindowPlace::reachable(place, QSize(400, 300), {room}), QPoint(600, 0));
}

void tst_WindowPlace::aWindowComesBackWhereItCanBeReached_data()
{
    QTest::addColumn<QPoint>("stored");
    QTest::addColumn<QPoint>("restored");
    const auto same = [](const char *row, QPoint place) { QTest::newRow(row) << place << place; };
    // The left screen is 1000 wide with a panel of 30 above; the right one, 800 wide, lies lower.
    same("in the middle", {300, 300});
    same("in the upper left corner", {0, 30});
    same("on the second screen", {1500, 400});
    same("over the lower edge", {300, 700});
    same("over both screens", {900, 400});
    same("the last pixels that can be taken hold of", {-340, 300});
    QTest::newRow("a pixel too far") << QPoint(-341, 300) << QPoint(0, 300);
    same("with just so much of the title bar above the lower edge", {300, 780});
    QTest::newRow("with less of it") << QPoint(300, 781) << QPoint(300, 500);
    QTest::newRow("under the panel") << QPoint(300, 10) << QPoint(300, 30);
    QTest::newRow("below everything") << QPoint(300, 5000) << QPoint(300, 500);
    QTest::newRow("on a screen that is gone, on the right")
        << QPoint(2600, 300) << QPoint(1400, 300);
    QTest::newRow("on a screen that is gone, above") << QPoint(300, -900) << QPoint(300, 30);
}

void tst_WindowPlace::aWindowComesBackWhereItCanBeReached()
{
    QFETCH(const QPoint, stored);
    const QList<QRect> rooms{QRect(0, 30, 1000, 770), QRect(1000, 200, 800, 600)};
    QTEST(WindowPlace::reachable(stored, QSize(400, 300), rooms), "restored");
}

WUFFER_TEST(tst_WindowPlace)
#include "tst_WindowPlace.moc"
