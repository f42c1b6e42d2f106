#include "BuildInfo.h"
#include "support/TestMain.h"
#include "support/TimerFixture.h"

#include <QFontDatabase>
#include <QPainterPath>
#include <QRawFont>

namespace
{
const QColor kRed = QColor::fromRgbF(0.9F, 0.0F, 0.0F);
} // namespace

/// The texts of the display with their sizes and colours, and the names of a timer.
class tst_Display final : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void anIdleTimerShowsTheProgramsName();
    void aCountdownShowsWhatIsLeftAndWhatHasPassed();
    void theElapsedLineIsEmptyOnlyAtTheVeryStart();
    void zeroOrLessRestoresTheIdleDisplay_data();
    void zeroOrLessRestoresTheIdleDisplay();
    void theLastElevenSecondsAreRed();
    void itStaysRedWhenStoppedInTheLastSeconds();
    void theElapsedLineTakesTheColorOnlyIfAskedTo();
    void theBigTextShrinksToTheWidthOfTenCharacters_data();
    void theBigTextShrinksToTheWidthOfTenCharacters();
    void everyTextOfTheDisplayIsInCourier();
    void theTypefaceIsTheBestThatIsInstalled();
    void theTypefaceIsUprightAndNotBold();
    void theTitleIsTheNameOrWuffer();
    void theDescriptionHasTheDurationSet();
    void theStatusIsTheBigText();
};

void tst_Display::anIdleTimerShowsTheProgramsName()
{
    const TimerFixture t;
    QCOMPARE(t.display(), QStringLiteral("Wuffer"));
    QCOMPARE(t.milliseconds(), QStringLiteral("v") + BuildInfo::version());
    QCOMPARE(t.elapsed(), QStringLiteral("Ready when you are"));
    QCOMPARE(t.color(), QColor(Qt::black));
    QCOMPARE(t.elapsedColor(), QColor(Qt::black));
}

void tst_Display::aCountdownShowsWhatIsLeftAndWhatHasPassed()
{
    TimerFixture t;
    t.timer.refreshDisplay(3725.5, 65);
    QCOMPARE(t.display(), QStringLiteral("1h 2m 5s"));
    QCOMPARE(t.elapsed(), QStringLiteral("Elapsed: 1m 5s"));
    QCOMPARE(t.milliseconds(), QStringLiteral("500"));
}

void tst_Display::theElapsedLineIsEmptyOnlyAtTheVeryStart()
{
    TimerFixture t;
    t.timer.refreshDisplay(60, 0);
    QCOMPARE(t.elapsed(), QString());
    t.timer.refreshDisplay(60, 0.001);
    QCOMPARE(t.elapsed(), QStringLiteral("Elapsed: 0s"));
}

void tst_Display::zeroOrLessRestoresTheIdleDisplay_data()
{
    QTest::addColumn<double>("remaining");
    QTest::newRow("zero") << 0.0;
    QTest::newRow("less") << -5.0;
}

void tst_Display::zeroOrLessRestoresTheIdleDisplay()
{
    QFETCH(const double, remaining);
    TimerFixture t;
    t.timer.refreshDisplay(5, 60);
    t.timer.refreshDisplay(remaining, 65);
    QCOMPARE(t.display(), QStringLiteral("Wuffer"));
    QCOMPARE(t.elapsed(), QStringLiteral("Ready when you are"));
    QCOMPARE(t.color(), QColor(Qt::black));
    QCOMPARE(t.elapsedColor(), QColor(Qt::black));
}

void tst_Display::theLastElevenSecondsAreRed()
{
    TimerFixture t;
    t.timer.refreshDisplay(11.001, 1);
    QCOMPARE(t.color(), QColor(Qt::black));
    t.timer.refreshDisplay(11, 1);
    QCOMPARE(t.color(), kRed);
    QCOMPARE(t.elapsedColor(), kRed);
    QCOMPARE(t.label("_msLabel").textColor(), kRed);
    QCOMPARE(t.label("_fullTitleField").textColor(), kRed);
    QCOMPARE(t.part<QLineEdit>("_titleField").palette().color(QPalette::Text), kRed);
    t.timer.refreshDisplay(12, 1);
    QCOMPARE(t.color(), QColor(Qt::black));
    QCOMPARE(t.part<QLineEdit>("_titleField").palette().color(QPalette::Text), QColor(Qt::black));
}

void tst_Display::itStaysRedWhenStoppedInTheLastSeconds()
{
    TimerFixture t;
    t.startCountdown(20);
    t.pass(15);
    t.pressGo();
    QCOMPARE(t.color(), kRed);
    QCOMPARE(t.display(), QStringLiteral("5s"));
}

void tst_Display::theElapsedLineTakesTheColorOnlyIfAskedTo()
{
    TimerFixture t;
    t.timer.setColorForDisplayText(TextColor::Blue, false);
    QCOMPARE(t.color(), QColor(Qt::blue));
    QCOMPARE(t.elapsedColor(), QColor(Qt::black));
    t.timer.setColorForDisplayText(TextColor::Blue, true);
    QCOMPARE(t.elapsedColor(), QColor(Qt::blue));
}

void tst_Display::theBigTextShrinksToTheWidthOfTenCharacters_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<double>("inWindow");
    QTest::addColumn<double>("onFullScreen");
    QTest::newRow("nothing") << QString() << 27.0 << 200.0;
    QTest::newRow("eight") << QStringLiteral("1h 2m 5s") << 27.0 << 200.0;
    QTest::newRow("ten") << QString(10, QLatin1Char('x')) << 27.0 << 200.0;
    QTest::newRow("eleven") << QString(11, QLatin1Char('x')) << 27.0 / 1.1 << 200.0 / 1.1;
    QTest::newRow("twenty") << QString(20, QLatin1Char('x')) << 13.5 << 100.0;
}

void tst_Display::theBigTextShrinksToTheWidthOfTenCharacters()
{
    QFETCH(const QString, text);
    QFETCH(const double, inWindow);
    QFETCH(const double, onFullScreen);
    TimerFixture t;
    const DisplayLabel &big = t.label("_resultLabel");

    t.timer.setResultLabelText(text);
    QCOMPARE(big.font().pointSizeF(), inWindow);
    t.timer.setFullScreenMode(true);
    QCOMPARE(big.font().pointSizeF(), onFullScreen);
    QCOMPARE(big.text(), text);
    t.timer.setResultLabelText(QStringLiteral("short"));
    QCOMPARE(big.font().pointSizeF(), 200.0);
    t.timer.setResultLabelText(text);
    t.timer.setFullScreenMode(false);
    QCOMPARE(big.font().pointSizeF(), inWindow);
}

void tst_Display::everyTextOfTheDisplayIsInCourier()
{
    TimerFixture t;
    for (const bool fullScreen : {false, true, false}) {
        t.timer.setFullScreenMode(fullScreen);
        const double small = fullScreen ? 36 : 12;
        QCOMPARE(t.label("_resultLabel").font().family(), QStringLiteral("Courier"));
        for (const char *name : {"_msLabel", "_elapsedLabel"}) {
            QCOMPARE(t.label(name).font().family(), QStringLiteral("Courier"));
            QCOMPARE(t.label(name).font().pointSizeF(), small);
        }
    }
}

void tst_Display::theTypefaceIsTheBestThatIsInstalled()
{
    const TimerFixture t;
    const QString drawn = QRawFont::fromFont(t.label("_resultLabel").font()).familyName();
    const QString courier = QStringLiteral("Courier");
    QCOMPARE(drawn, QFontDatabase::hasFamily(courier) ? courier : QStringLiteral("Courier Prime"));
}

void tst_Display::theTypefaceIsUprightAndNotBold()
{
    const TimerFixture t;
    QRawFont font = QRawFont::fromFont(t.label("_resultLabel").font());
    font.setPixelSize(1000);
    const QRectF bar =
        font.pathForGlyph(font.glyphIndexesForString(QStringLiteral("|")).constFirst())
            .boundingRect();
    // A slanted bar would be several times wider.
    QVERIFY(bar.width() > 0);
    QVERIFY2(bar.width() < 90, qPrintable(QString::number(bar.width())));
}

void tst_Display::theTitleIsTheNameOrWuffer()
{
    TimerFixture t;
    QCOMPARE(t.timer.title(), QStringLiteral("Wuffer"));
    t.typeName(QStringLiteral("Tea"));
    QCOMPARE(t.timer.title(), QStringLiteral("Tea"));
}

void tst_Display::theDescriptionHasTheDurationSet()
{
    TimerFixture t;
    t.typeDuration(1, 2, 3);
    QCOMPARE(t.timer.description(), QStringLiteral("Wuffer - 1h 2m 3s"));
    t.typeName(QStringLiteral("Tea"));
    t.pressGo();
    t.pass(60);
    QCOMPARE(t.timer.description(), QStringLiteral("Tea - 1h 2m 3s"));
    t.part<QLineEdit>("_secondsField").setText(QStringLiteral("5.9"));
    QCOMPARE(t.timer.description(), QStringLiteral("Tea - 1h 2m 5s"));
}

void tst_Display::theStatusIsTheBigText()
{
    TimerFixture t;
    QCOMPARE(t.timer.statusString(), QStringLiteral("Wuffer"));
    t.startCountdown(65);
    t.pass(0.04);
    QCOMPARE(t.timer.statusString(), QStringLiteral("1m 4s"));
    t.pass(65);
    QCOMPARE(t.timer.statusString(), QStringLiteral("Wuff!"));
}

WUFFER_TEST(tst_Display)
#include "tst_Display.moc"
