#include "rules/FigureText.h"
#include "support/TestMain.h"

#include <QRegularExpression>
#include <QTest>

#include <bit>
#include <cmath>
#include <limits>
#include <random>

namespace
{
QLocale localeNamed(const QString &name)
{
    return name == QLatin1String("C") ? QLocale::c() : QLocale(name);
}
} // namespace

class tst_FigureText final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void textReadsAsItsLeadingNumber_data();
    void textReadsAsItsLeadingNumber();
    void textReadsInTheWayOfItsLocale_data();
    void textReadsInTheWayOfItsLocale();
    void theBegunPartOfAText_data();
    void theBegunPartOfAText();
    void numbersAreWrittenShort_data();
    void numbersAreWrittenShort();
    void whatIsWrittenReadsAsTheSameInEveryLocale();
    void everyFloatReadsBackUnchanged();
    void noMoreThanNineDigits();
    void numbersAreRounded_data();
    void numbersAreRounded();
    void aRoundedNumberIsCloseAndShort();
    void aVeryLongTextIsReadAtOnce();
};

void tst_FigureText::textReadsAsItsLeadingNumber_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<double>("number");

    const auto row = [](const char *name, const char *text, double number) {
        QTest::newRow(name) << QString::fromUtf8(text) << number;
    };
    row("nothing", "", 0);
    row("a whole number", "12", 12);
    row("a fraction", "12.5", 12.5);
    row("a point at the end", "12.", 12);
    row("a point at the beginning", ".5", 0.5);
    row("a point alone", ".", 0);
    row("two points", "1.5.2", 1.5);
    row("a comma where it is no point", "12,5", 12.5);
    row("negative", "-3.25", -3.25);
    row("a plus sign", "+3", 3);
    row("a sign alone", "-", 0);
    row("two signs", "--3", 0);
    row("after blanks", " \t7", 7);
    row("something after it", "5 cups", 5);
    row("something after it without a blank", "5cups", 5);
    row("something before it", "about 5", 0);
    row("words", "five", 0);
    row("a word that means no number", "nan", 0);
    row("a word that means no end", "inf", 0);
    row("infinity in full", "infinity", 0);
    row("a number of another base", "0x10", 0);
    row("an exponent", "1.5e3", 1500);
    row("a large exponent letter", "1.5E3", 1500);
    row("an exponent that is not there yet", "1.5e", 1.5);
    row("only the sign of the exponent", "1.5e-", 1.5);
    row("too large", "1e60", static_cast<double>(std::numeric_limits<float>::max()));
    row("beyond all bounds", "-1e9999", -static_cast<double>(std::numeric_limits<float>::max()));
    row("too small", "1e-99", 0);
    row("a control character", "1\xc2\x80", 1);
}

void tst_FigureText::textReadsAsItsLeadingNumber()
{
    QFETCH(const QString, text);
    QTEST(static_cast<double>(FigureText::read(text, QLocale::c())), "number");
}

void tst_FigureText::textReadsInTheWayOfItsLocale_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QString>("text");
    QTest::addColumn<double>("number");

    const auto row = [](const char *name, const char *locale, const char *text, double number) {
        QTest::newRow(name) << QString::fromLatin1(locale) << QString::fromUtf8(text) << number;
    };
    row("groups", "en_US", "1,234.5", 1234.5);
    row("a comma that separates no group", "en_US", "1,25", 1.25);
    row("a comma and a point", "en_US", "1,5.5", 1.5);
    row("a decimal comma", "de_DE", "12,5", 12.5);
    row("a comma at the end", "de_DE", "12,", 12);
    row("a point where it is no comma", "de_DE", "12.5", 12.5);
    row("a point that separates a group", "de_DE", "12.500", 12500);
    row("a comma where it is a point", "de_CH", "12,5", 12.5);
    row("a mark that is on no keyboard", "fa_IR", "12.5", 12.5);
    row("groups with points", "de_DE", "1.234,5", 1234.5);
    row("groups with blanks", "fr_FR", "1 234,5", 1234.5);
    row("a small e where it is unusual", "sv_SE", "1,5e3", 1500);
    row("a minus sign of the printer's", "sv_SE", "−3", -3);
    row("digits of another script", "ar_EG", "١٢٫٥", 12.5);
}

void tst_FigureText::textReadsInTheWayOfItsLocale()
{
    QFETCH(const QString, locale);
    QFETCH(const QString, text);
    QTEST(static_cast<double>(FigureText::read(text, QLocale(locale))), "number");
}

void tst_FigureText::theBegunPartOfAText_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("begun");

    const auto row = [](const char *name, const char *text, const char *begun) {
        QTest::newRow(name) << QString::fromLatin1(text) << QString::fromLatin1(begun);
    };
    row("nothing", "", "");
    row("a number", "12.50", "12.50");
    row("a point to be followed", "12.", "12.");
    row("a sign to be followed", "-", "-");
    row("a point alone", ".", ".");
    row("an exponent to be followed", "3e", "3e");
    row("the sign of an exponent", "3e-", "3e-");
    row("a second point", "12.5.", "12.5");
    row("a letter", "12x", "12");
    row("a unit", "12.5 cups", "12.5 ");
    row("words", "cups", "");
    row("a comma for a point", "12,", "12,");
}

void tst_FigureText::theBegunPartOfAText()
{
    QFETCH(const QString, text);
    QTEST(FigureText::begun(text, QLocale::c()), "begun");
}

void tst_FigureText::numbersAreWrittenShort_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<float>("number");
    QTest::addColumn<QString>("text");

    const auto row = [](const char *name, const char *locale, float number, const char *text) {
        QTest::newRow(name) << QString::fromLatin1(locale) << number << QString::fromUtf8(text);
    };
    row("nothing", "C", 0.0F, "0");
    row("nothing, from below", "C", -0.0F, "0");
    row("whole", "C", 212.0F, "212");
    row("a round number", "C", 1000000.0F, "1000000");
    row("without needless digits", "C", 0.1F, "0.1");
    row("with those that it takes", "C", 1000.0F / 3.0F, "333.33334");
    row("negative", "C", -17.777779F, "-17.777779");
    row("nine digits", "C", 123456792.0F, "123456792");
    row("large", "C", 1.2345679e10F, "1.2345679E10");
    row("small", "C", 0.00000123F, "0.00000123");
    row("smaller", "C", 5e-8F, "5E-08");
    row("no groups", "en_US", 1234567.0F, "1234567");
    row("a decimal comma", "de_DE", 12.5F, "12,5");
    row("a minus that can be typed", "sv_SE", -12.5F, "-12,5");
    row("digits of another script", "ar_EG", 12.5F, "١٢٫٥");
    row("nothing in another script", "ar_EG", 0.0F, "٠");
}

void tst_FigureText::numbersAreWrittenShort()
{
    QFETCH(const QString, locale);
    QFETCH(const float, number);
    QTEST(FigureText::write(number, localeNamed(locale)), "text");
}

void tst_FigureText::whatIsWrittenReadsAsTheSameInEveryLocale()
{
    const QList<QLocale> locales =
        QLocale::matchingLocales(QLocale::AnyLanguage, QLocale::AnyScript, QLocale::AnyTerritory);
    QVERIFY(locales.size() > 100);
    for (const QLocale &locale : locales) {
        for (const float number : {0.0F, -12.5F, 0.1F, 999.99994F, 123456792.0F, 5e-8F, -2.5e12F}) {
            const QString text = FigureText::write(number, locale);
            QVERIFY2(FigureText::read(text, locale) == number,
                     qPrintable(locale.name() + QLatin1Char(' ') + text));
            QCOMPARE(FigureText::begun(text, locale), text);
        }
    }
}

void tst_FigureText::everyFloatReadsBackUnchanged()
{
    const QLocale locale = QLocale::c();
    std::mt19937 random(20); // a fixed seed, so that failures can be reproduced
    int tried = 0;
    while (tried < 20000) {
        const auto number = std::bit_cast<float>(static_cast<quint32>(random()));
        if (!qIsFinite(number))
            continue;
        const QString text = FigureText::write(number, locale);
        QVERIFY2(FigureText::read(text, locale) == number, qPrintable(text));
        ++tried;
    }
    for (const float number : {std::numeric_limits<float>::max(), std::numeric_limits<float>::min(),
                               std::numeric_limits<float>::denorm_min()})
        QVERIFY(FigureText::read(FigureText::write(number, locale), locale) == number);
}

void tst_FigureText::noMoreThanNineDigits()
{
    static const QRegularExpression leading(QStringLiteral("^-?0*\\.?0*|E.*$|\\D"));
    std::mt19937 random(21);
    std::uniform_real_distribution<float> power(-8.0F, 12.0F);
    for (int count = 0; count < 5000; ++count) {
        QString text = FigureText::write(std::pow(10.0F, power(random)), QLocale::c());
        const QString digits = QString(text).remove(leading);
        QVERIFY2(digits.size() <= 9, qPrintable(text));
    }
}

void tst_FigureText::numbersAreRounded_data()
{
    QTest::addColumn<QString>("locale");
    QTest::addColumn<float>("number");
    QTest::addColumn<QString>("text");

    const auto row = [](const char *name, const char *locale, float number, const char *text) {
        QTest::newRow(name) << QString::fromLatin1(locale) << number << QString::fromUtf8(text);
    };
    row("nothing", "C", 0.0F, "0");
    row("nothing, from below", "C", -0.0F, "0");
    row("whole", "C", 212.0F, "212");
    row("five digits", "C", 333.33334F, "333.33");
    row("negative", "C", -17.777779F, "-17.778");
    row("without zeros at the end", "C", 28.349524F, "28.35");
    row("nearly the next whole number", "C", 999.99994F, "1000");
    row("nearly one digit more", "C", 99999.99F, "100000");
    row("a small fraction", "C", 0.0042267528F, "0.0042268");
    row("five digits before the point", "C", 12345.678F, "12346");
    row("a longer whole part", "C", 236588.24F, "236588");
    row("a longer whole part that is rounded", "C", 999999.6F, "1000000");
    row("nine digits", "C", 123456792.0F, "123456792");
    row("a whole part too long to be written out", "C", 1.2345679e10F, "1.2345679E10");
    row("the largest", "C", std::numeric_limits<float>::max(), "3.40282347E38");
    row("very small", "C", 1.23456789e-8F, "1.2346E-08");
    row("no groups", "en_US", 1234567.0F, "1234567");
    row("a decimal comma", "de_DE", 1.0F / 3.0F, "0,33333");
    row("digits of another script", "ar_EG", 12.500001F, "١٢٫٥");
    row("nothing in another script", "ar_EG", 0.0F, "٠");
}

void tst_FigureText::numbersAreRounded()
{
    QFETCH(const QString, locale);
    QFETCH(const float, number);
    QTEST(FigureText::writeRounded(number, localeNamed(locale)), "text");
}

void tst_FigureText::aRoundedNumberIsCloseAndShort()
{
    constexpr float halfOfTheFifthDigit = 0.00005001F;
    std::mt19937 random(22);
    std::uniform_real_distribution<float> power(-8.0F, 12.0F);
    for (int count = 0; count < 5000; ++count) {
        const float number = std::pow(10.0F, power(random));
        const QString text = FigureText::writeRounded(number, QLocale::c());
        const float read = FigureText::read(text, QLocale::c());
        QVERIFY2(std::abs(read - number) <= number * halfOfTheFifthDigit, qPrintable(text));
        QVERIFY2(number < 1.0F || std::abs(read - number) <= 0.5F, qPrintable(text));
        QVERIFY2(text.size() <= FigureText::write(number, QLocale::c()).size(), qPrintable(text));
    }
}

void tst_FigureText::aVeryLongTextIsReadAtOnce()
{
    const QString digits(1000000, QLatin1Char('9'));
    QCOMPARE(FigureText::read(digits, QLocale::c()), std::numeric_limits<float>::max());
    const QString letters(1000000, QLatin1Char('x'));
    QCOMPARE(FigureText::read(letters, QLocale::c()), 0.0F);
    QCOMPARE(FigureText::begun(letters, QLocale::c()), QString());
}

WUFFER_TEST(tst_FigureText, WithoutApplication)
#include "tst_FigureText.moc"
