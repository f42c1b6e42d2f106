#include "base/Contrast.h"
#include "support/TestMain.h"

namespace
{
constexpr Rgb kRed{{230, 0, 0}};
constexpr Rgb kBlue{{0, 0, 255}};
constexpr Rgb kDark{{42, 42, 42}};

/// The difference of the two smaller parts: 0 for a colour that is a red or a blue with nothing
/// but black or white in it.
int tint(Rgb color)
{
    std::ranges::sort(color.parts);
    return color.parts[1] - color.parts[0];
}
} // namespace

class tst_Contrast final : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void contrastsAreThoseOfTheGuidelines_data();
    void contrastsAreThoseOfTheGuidelines();
    void aReadableColorStaysItself();
    void theNearestReadableColorKeepsTheHue();
    void everyColorBecomesReadableOnEveryGround();
    void noNearerColorIsReadable();
};

void tst_Contrast::contrastsAreThoseOfTheGuidelines_data()
{
    QTest::addColumn<Rgb>("one");
    QTest::addColumn<Rgb>("other");
    QTest::addColumn<QString>("ratio");
    QTest::newRow("the largest") << Contrast::kBlack << Contrast::kWhite << "21.00";
    QTest::newRow("the least") << kRed << kRed << "1.00";
    QTest::newRow("grey on white") << Rgb{{0x76, 0x76, 0x76}} << Contrast::kWhite << "4.54";
    QTest::newRow("red on white") << Rgb{{255, 0, 0}} << Contrast::kWhite << "4.00";
    QTest::newRow("green on white") << Rgb{{0, 255, 0}} << Contrast::kWhite << "1.37";
    QTest::newRow("blue on white") << kBlue << Contrast::kWhite << "8.59";
}

void tst_Contrast::contrastsAreThoseOfTheGuidelines()
{
    QFETCH(const Rgb, one);
    QFETCH(const Rgb, other);
    QTEST(QString::number(Contrast::ratio(one, other), 'f', 2), "ratio");
    QTEST(QString::number(Contrast::ratio(other, one), 'f', 2), "ratio");
}

void tst_Contrast::aReadableColorStaysItself()
{
    for (const Rgb &color : {kRed, kBlue, Contrast::kBlack})
        QVERIFY(Contrast::readable(color, Contrast::kWhite) == color);
    QVERIFY(Contrast::readable(kRed, kDark, 1.5) == kRed);
}

void tst_Contrast::theNearestReadableColorKeepsTheHue()
{
    for (const Rgb &color : {kRed, kBlue}) {
        const Rgb onDark = Contrast::readable(color, kDark);
        QVERIFY(onDark.parts != color.parts);
        QCOMPARE(std::ranges::max_element(onDark.parts) - onDark.parts.begin(),
                 std::ranges::max_element(color.parts) - color.parts.begin());
        QCOMPARE(tint(onDark), 0);
        QVERIFY(Contrast::ratio(onDark, kDark) >= Contrast::kText);
        QVERIFY(Contrast::ratio(onDark, kDark) < Contrast::kText + 0.1);
    }
}

void tst_Contrast::everyColorBecomesReadableOnEveryGround()
{
    constexpr int step = 85;
    const auto color = [](int number) {
        return Rgb{{number % 4 * step, number / 4 % 4 * step, number / 16 * step}};
    };
    for (int ink = 0; ink < 64; ++ink) {
        for (int ground = 0; ground < 64; ++ground) {
            const Rgb readable = Contrast::readable(color(ink), color(ground));
            QVERIFY(Contrast::ratio(readable, color(ground)) >= Contrast::kText);
        }
    }
}

void tst_Contrast::noNearerColorIsReadable()
{
    // A grey on a ground of medium brightness goes the shorter of its two ways.
    const Rgb ground{{110, 110, 110}};
    QVERIFY(Contrast::readable({{200, 200, 200}}, ground).parts[0] > 200);
    const Rgb light{{140, 140, 140}};
    QVERIFY(Contrast::readable({{60, 60, 60}}, light).parts[0] < 60);
}

WUFFER_TEST(tst_Contrast, WithoutApplication)
#include "tst_Contrast.moc"
