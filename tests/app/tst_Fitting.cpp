#include "app/AboutDialog.h"
#include "app/WufferApplication.h"
#include "app/WufferController.h"
#include "rules/Chain.h"
#include "rules/FinishActions.h"
#include "rules/Preset.h"
#include "rules/TimeFormat.h"
#include "rules/TimerTexts.h"
#include "support/CalmStyle.h"
#include "support/FakeTranslator.h"
#include "support/HelpReader.h"
#include "support/InLanguage.h"
#include "support/Misfits.h"
#include "support/TestMain.h"
#include "timer/TargetTimeSheet.h"
#include "tools/MeasurementsPanel.h"
#include "tools/NumberField.h"

#include <QTabWidget>

#include <algorithm>
#include <optional>

namespace
{
/// The program with one timer, whose drawer is open.
struct Program : TestServices
{
    explicit Program(const QVariantMap &settings = {})
    {
        for (auto each = settings.begin(); each != settings.end(); ++each)
            defaults.setObject(each.value(), each.key());
        controller.awakeFromNib();
        user.emplace(*WufferApplication::getWuffers().front());
        user->timer.showHideAdvanced();
    }

    [[nodiscard]] QWidget &timerWindow() const { return *user->timer.window(); }

    WufferController controller;
    std::optional<TimerUser> user;
};

/// Fails with the texts of the window that do not fit.
void check(QWidget &window)
{
    // The window system may resize the window a moment later.
    constexpr int longestWait = 500;
    QStringList found;
    const auto fits = [&] { return (found = misfits(window)).isEmpty(); };
    QApplication::processEvents();
    [[maybe_unused]] const bool settled = QTest::qWaitFor(fits, longestWait);
    const QString title = window.windowTitle();
    QVERIFY2(found.isEmpty(),
             qPrintable(title + QStringLiteral(": ") + found.join(QLatin1Char('\n'))));
    constexpr int widest = 1000;
    QFETCH_GLOBAL(const int, points);
    if (points == 0 && window.devicePixelRatio() == 1.0)
        QVERIFY2(window.width() <= widest, qPrintable(title));
}
/// Checks the window at its usual size, and as small as the user can make it.
void checkAtAllSizes(QWidget &window)
{
    check(window);
    window.resize(window.minimumSizeHint());
    check(window);
}
} // namespace

/// Every text has enough room, in each language and with a large font. Run this with a scale
/// factor, too: lengths in pixels round differently then.
class tst_Fitting final : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase_data();
    void initTestCase() { QApplication::setStyle(new CalmStyle); }

    void aLongerTextGetsMoreRoom();
    void aTextThatGetsNoMoreRoomIsFound();

    void aTimerFits();
    void eachFinishActionFits();
    void aRunningTimerFits();
    void aStopwatchFits();
    void anAlarmFits();
    void aChainFits();
    void theLongestLinesOfTheDisplayFit();
    void aTimerIsNotMuchWiderThanInEnglish();
    void theSheetForADateFits();
    void theHomeWindowFits();
    void thePreferencesFit();
    void thePreferencesFitWithMissingSounds();
    void theConverterFits();
    void theMeasurementsFit();
    void theHelpFits();
    void theAboutDialogFits();

private:
    static void checkPreferences(Program &program);

    QFont _usualFont;
    std::optional<InLanguage> _language;

private Q_SLOTS:
    void init()
    {
        Test::init();
        _usualFont = QApplication::font();
        QFETCH_GLOBAL(const QString, language);
        QFETCH_GLOBAL(const int, points);
        _language.emplace(language);
        if (points > 0) {
            QFont font = _usualFont;
            font.setPointSize(points);
            QApplication::setFont(font);
        }
    }
    void cleanup()
    {
        _language.reset();
        QApplication::setFont(_usualFont);
    }
};

void tst_Fitting::initTestCase_data()
{
    constexpr int large = 16;
    QTest::addColumn<QString>("language");
    QTest::addColumn<int>("points");
    for (const QString &language : InLanguage::all()) {
        QTest::newRow(qPrintable(language)) << language << 0;
        QTest::newRow(qPrintable(language + QStringLiteral(", large"))) << language << large;
    }
}

void tst_Fitting::aLongerTextGetsMoreRoom()
{
    const FakeTranslator verbose({{QStringLiteral("h&ours"), QStringLiteral("very many h&ours")}});
    const Program program;
    QCOMPARE(child<QLabel>(program.timerWindow(), "_hoursWord").text(),
             QStringLiteral("very many h&ours"));
    check(program.timerWindow());
}

void tst_Fitting::aTextThatGetsNoMoreRoomIsFound()
{
    const auto ready = QStringLiteral("Ready when you are");
    const FakeTranslator verbose({{ready, ready.repeated(5)}});
    const Program program;
    QApplication::processEvents();
    QCOMPARE(misfits(program.timerWindow()).size(), 1);
}

void tst_Fitting::aTimerFits()
{
    const Program program;
    check(program.timerWindow());
}

void tst_Fitting::eachFinishActionFits()
{
    Program program;
    for (const FinishActions::Row &row : FinishActions::rows()) {
        program.user->chooseFinish(FinishActions::shownText(row));
        check(program.timerWindow());
    }
}

void tst_Fitting::aRunningTimerFits()
{
    Program program;
    program.user->startCountdown(3903);
    program.clock.advance(1);
    QVERIFY(!program.user->elapsed().isEmpty());
    check(program.timerWindow());
}

void tst_Fitting::aStopwatchFits()
{
    Program program;
    program.user->timer.stopwatch();
    check(program.timerWindow());
    program.user->pressGo();
    program.clock.advance(1);
    check(program.timerWindow());
}

void tst_Fitting::anAlarmFits()
{
    Program program;
    program.user->startCountdown(1);
    program.clock.advance(1.5);
    QCOMPARE(program.user->go(), TimerTexts::reset());
    check(program.timerWindow());
}

void tst_Fitting::aChainFits()
{
    Program program;
    program.controller.newWuffer();
    Wuffer &next = *WufferApplication::getWuffers().back();
    program.user->timer.setTargetWuffer(&next);
    QVERIFY(next.isChained());
    check(program.timerWindow());
    check(*next.window());
}

void tst_Fitting::theLongestLinesOfTheDisplayFit()
{
    const Program program;
    const QString elapsed =
        QCoreApplication::translate("Wuffer", "Elapsed: %1").arg(TimeFormat::stringForTime(3903));
    for (const QString &line : {elapsed + QStringLiteral(" (x12)"), Chain::text(2, 3),
                                Preset::savedMark(3), TimerTexts::stopwatch()}) {
        program.user->label("_elapsedLabel").setText(line);
        check(program.timerWindow());
    }
}

void tst_Fitting::aTimerIsNotMuchWiderThanInEnglish()
{
    QApplication::processEvents();
    const auto width = [] {
        const Program program;
        QApplication::processEvents();
        return program.timerWindow().width();
    };
    const int own = width();
    _language.reset();
    QVERIFY2(own * 2 <= width() * 3, qPrintable(QString::number(own)));
}

void tst_Fitting::theSheetForADateFits()
{
    const Program program;
    program.user->timer.targetTime();
    check(windowWith<TargetTimeSheet>());
}

void tst_Fitting::theHomeWindowFits()
{
    const Program program;
    program.timerWindow().close();
    QTRY_VERIFY(QApplication::activeWindow());
    checkAtAllSizes(*QApplication::activeWindow());
}

void tst_Fitting::thePreferencesFit()
{
    Program program;
    checkPreferences(program);
}

void tst_Fitting::thePreferencesFitWithMissingSounds()
{
    const auto gone = QStringLiteral("/gone.wav");
    Program program({{QStringLiteral("alarmPath"), gone},
                     {QStringLiteral("countdownPath"), gone},
                     {QStringLiteral("soundHistory"), QStringList{gone}}});
    checkPreferences(program);
    const auto &word = child<QLabel>(windowWith<QTabWidget>(), "_alarmMissingWord");
    QVERIFY(!word.isHidden());
}

void tst_Fitting::checkPreferences(Program &program)
{
    program.controller.showPreferences();
    QWidget &window = windowWith<QTabWidget>();
    auto &pages = *window.findChild<QTabWidget *>();
    for (int page = 0; page < pages.count(); ++page) {
        pages.setCurrentIndex(page);
        checkAtAllSizes(window);
    }
}

void tst_Fitting::theConverterFits()
{
    Program program;
    program.controller.showConverter();
    check(windowWith<NumberField>());
}

void tst_Fitting::theMeasurementsFit()
{
    Program program;
    program.controller.showMeasurements();
    check(windowWith<MeasurementsPanel>());
}

void tst_Fitting::theHelpFits()
{
    Reader reader;
    reader.open();
    for (const QString &search : {QString(), QStringLiteral("e"), QStringLiteral("xyzxyz")}) {
        Reader::field().setText(search);
        check(Reader::window());
    }
}

void tst_Fitting::theAboutDialogFits()
{
    Program program;
    program.controller.showAbout();
    check(windowWith<AboutDialog>());
}

WUFFER_TEST(tst_Fitting)
#include "tst_Fitting.moc"
