#include "rules/DigitRow.h"
#include "support/TestMain.h"

#include <QtTest/QTest>

using DigitRow::contains;
using DigitRow::digitAt;
using DigitRow::digitOfKey;
using Symbols = std::vector<quint32>;

/// Which digit a key press means.
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

    void theRowHasThirteenKeys()
    {
        int keys = 0;
        for (quint32 number = 0; number < 256; ++number)
            keys += contains(number) ? 1 : 0;
        QCOMPARE(keys, 13);
        QVERIFY(contains(10) && contains(21) && contains(49));
    }

    void aKeyStandsForADigit_data()
    {
        QTest::addColumn<quint32>("number");
        QTest::addColumn<Symbols>("symbols");
        QTest::addColumn<std::optional<int>>("digit");
        const auto row = [](const char *name, quint32 number, const Symbols &symbols,
                            std::optional<int> digit) {
            QTest::newRow(name) << number << symbols << digit;
        };
        row("digits alone, first", 10, {'1', '!'}, 1);
        row("digits alone, last", 19, {'0', ')'}, 0);
        row("digits with Shift, first", 10, {'&', '1'}, 1);
        row("digits with Shift, a letter below", 18, {0xe7, '9'}, 9);
        row("digits in another order", 11, {'[', '7'}, 7);
        row("digits in another order, last", 19, {']', '8'}, 8);
        row("digits beside the usual places, left", 49, {'0', 0xa7}, 0);
        row("digits beside the usual places, right", 20, {'!', '8'}, 8);
        row("no digit, first", 10, {0x3b1, 0x391}, 1);
        row("no digit, last", 19, {0x3b1, 0x391}, 0);
        row("no digit, left of the first", 49, {'`', '~'}, std::nullopt);
        row("no digit, right of the last", 20, {'-', '_'}, std::nullopt);
        row("unknown, first", 10, {}, 1);
        row("unknown, ninth", 18, {}, 9);
        row("unknown, last", 19, {}, 0);
        row("unknown, left of the first", 49, {}, std::nullopt);
        row("nothing on the key", 14, {0, 0}, 5);
    }
    void aKeyStandsForADigit()
    {
        QFETCH(const quint32, number);
        QFETCH(const Symbols, symbols);
        QFETCH(const std::optional<int>, digit);
        QCOMPARE(digitAt(number, [](quint32) { return Symbols(); }).has_value(),
                 number >= 10 && number <= 19);
        const auto onThisKey = [&](quint32 key) { return key == number ? symbols : Symbols(); };
        QCOMPARE(digitAt(number, onThisKey), digit);
    }

    void aDigitIsNotTwoKeys()
    {
        // As on a Hungarian keyboard: 0 is left of 1, and a letter is in the usual place of 0.
        const auto hungarian = [](quint32 key) -> Symbols {
            if (key == 49)
                return {'0', 0xa7};
            return key == 19 ? Symbols{0xf6, 0xd6} : Symbols{'1' + key - 10, '\''};
        };
        QCOMPARE(digitAt(49, hungarian), std::optional(0));
        QCOMPARE(digitAt(10, hungarian), std::optional(1));
        QCOMPARE(digitAt(19, hungarian), std::optional<int>());
    }
};

WUFFER_TEST(tst_DigitRow, WithoutApplication)
#include "tst_DigitRow.moc"
