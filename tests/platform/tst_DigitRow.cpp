#include "platform/DigitRow.h"

#include <QtTest/QTest>

using DigitRow::contains;
using DigitRow::digitAt;
using DigitRow::digitOfKey;

/// Which digit a press means.
class tst_DigitRow final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aKeyThatSaysADigitIsThatDigit()
    {
        QCOMPARE(digitOfKey(Qt::Key_0), std::optional(0));
        QCOMPARE(digitOfKey(Qt::Key_9), std::optional(9));
        for (const int other : {int(Qt::Key_0) - 1, int(Qt::Key_9) + 1, int(Qt::Key_Ampersand),
                                int(Qt::Key_A), int(Qt::Key_unknown), 0})
            QCOMPARE(digitOfKey(other), std::optional<int>());
    }

    void theRowHasTenKeys()
    {
        int keys = 0;
        for (quint32 number = 0; number < 256; ++number)
            keys += contains(number) ? 1 : 0;
        QCOMPARE(keys, 10);
        QVERIFY(contains(10) && contains(19));
    }

    void aKeyStandsForADigit_data()
    {
        QTest::addColumn<quint32>("number");
        QTest::addColumn<std::vector<quint32>>("symbols");
        QTest::addColumn<int>("digit");
        using Symbols = std::vector<quint32>;
        QTest::newRow("digits alone, first") << 10U << Symbols{'1', '!'} << 1;
        QTest::newRow("digits alone, last") << 19U << Symbols{'0', ')'} << 0;
        QTest::newRow("digits with Shift, first") << 10U << Symbols{'&', '1'} << 1;
        QTest::newRow("digits with Shift, a letter below") << 18U << Symbols{0xe7, '9'} << 9;
        QTest::newRow("digits in another order") << 11U << Symbols{'[', '7'} << 7;
        QTest::newRow("digits in another order, last") << 19U << Symbols{']', '8'} << 8;
        QTest::newRow("no digit, first") << 10U << Symbols{0x3b1, 0x391} << 1;
        QTest::newRow("no digit, last") << 19U << Symbols{0x3b1, 0x391} << 0;
        QTest::newRow("unknown, first") << 10U << Symbols{} << 1;
        QTest::newRow("unknown, ninth") << 18U << Symbols{} << 9;
        QTest::newRow("unknown, last") << 19U << Symbols{} << 0;
        QTest::newRow("nothing on the key") << 14U << Symbols{0, 0} << 5;
    }
    void aKeyStandsForADigit()
    {
        QFETCH(const quint32, number);
        QFETCH(const std::vector<quint32>, symbols);
        QTEST(digitAt(number, symbols), "digit");
    }
};

QTEST_APPLESS_MAIN(tst_DigitRow)
#include "tst_DigitRow.moc"
