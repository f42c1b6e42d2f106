#include "app/WufferController.h"
#include "support/TestMain.h"
#include "support/TestServices.h"
#include "support/TextContrasts.h"
#include "support/Themes.h"
#include "support/TimerUser.h"

#include <QListWidget>
#include <QMenuBar>
#include <QTabWidget>

#include <functional>

namespace
{
/// The program with one timer.
struct Program : TestServices
{
    Program() { controller.awakeFromNib(); }

    /// The newest timer.
    [[nodiscard]] static TimerUser newest()
    {
        return TimerUser(*WufferApplication::getWuffers().back());
    }

    WufferController controller;
};

/// The texts in all visible windows that cannot be read.
QString unreadable()
{
    QCoreApplication::processEvents();
    QString lines;
    for (QWidget *window : QApplication::topLevelWidgets()) {
        if (window->isVisible())
            lines += TextContrasts::unreadable(*window);
    }
    return lines;
}
} // namespace

#define EVERY_TEXT_IS_READABLE                                                                     \
    const QString found = unreadable();                                                            \
    QVERIFY2(found.isEmpty(), qPrintable(found))

/// Each text of each window has enough contrast, in each kind of theme.
class tst_ReadableTexts final : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void cleanupTestCase() { QApplication::setPalette(_start); }
    void aTooPaleTextIsFound();
    void aTooPaleItemIsFound();
    void everyWindowIsReadable_data();
    void everyWindowIsReadable();
    void aTimerIsReadableInEachState_data();
    void aTimerIsReadableInEachState();
    void aNewThemeCountsAtOnce();
    void aNewThemeCountsAtOnceInTheCalendar();
    void theColorsThatATimerSetsAreThoseOfEveryTheme();
    void aHighlightedWindowHasDarkTexts();

private:
    QPalette _start = QApplication::palette();
};

void tst_ReadableTexts::aTooPaleTextIsFound()
{
    setTheme(kThemes[0]);
    QWidget window;
    QLineEdit pale(QStringLiteral("Tea"), &window);
    QPalette palette;
    palette.setColor(QPalette::Text, QColor(190, 190, 190));
    pale.setPalette(palette);
    window.show();
    QCOMPARE(unreadable().count(QLatin1Char('\n')), 1);
    pale.setPalette({});
    QCOMPARE(unreadable(), QString());
    pale.setEnabled(false);
    QCOMPARE(TextContrasts::of(window).size(), 0);
}

void tst_ReadableTexts::aTooPaleItemIsFound()
{
    setTheme(kThemes[0]);
    QListWidget list;
    list.addItems({QStringLiteral("Tea"), QStringLiteral("Eggs")});
    list.show();
    QCOMPARE(unreadable(), QString());
    list.item(1)->setForeground(QColor(190, 190, 190));
    const QString found = unreadable();
    QCOMPARE(found.count(QLatin1Char('\n')), 1);
    QVERIFY(found.contains(QStringLiteral("Eggs")));
}

void tst_ReadableTexts::everyWindowIsReadable_data()
{
    using Show = void (WufferController::*)();
    const QList<std::pair<const char *, Show>> windows{
        {"preferences", &WufferController::showPreferences},
        {"converter", &WufferController::showConverter},
        {"measurements", &WufferController::showMeasurements},
        {"help", &WufferController::showHelp},
        {"about", &WufferController::showAbout}};
    QTest::addColumn<int>("theme");
    QTest::addColumn<std::function<void(WufferController &)>>("show");
    for (std::size_t theme = 0; theme < kThemes.size(); ++theme) {
        for (const auto &[name, show] : windows)
            QTest::addRow("%s, %s", name, kThemes.at(theme).name)
                << int(theme) << std::function<void(WufferController &)>(std::mem_fn(show));
    }
}

void tst_ReadableTexts::everyWindowIsReadable()
{
    QFETCH(const int, theme);
    QFETCH(const std::function<void(WufferController &)>, show);
    setTheme(kThemes.at(std::size_t(theme)));
    Program program;
    show(program.controller);
    {
        EVERY_TEXT_IS_READABLE;
    }
    for (auto *tabs : QApplication::activeWindow()->findChildren<QTabWidget *>()) {
        for (int page = 1; page < tabs->count(); ++page) {
            tabs->setCurrentIndex(page);
            EVERY_TEXT_IS_READABLE;
        }
    }
}

void tst_ReadableTexts::aTimerIsReadableInEachState_data()
{
    using Act = std::function<void(Program &)>;
    const auto timer = [](Program &) { return Program::newest(); };
    const QList<std::pair<const char *, Act>> states{
        {"idle", [](Program &) {}},
        {"without a window", [=](Program &p) { timer(p).timer.window()->close(); }},
        {"a page of the menu",
         [=](Program &p) {
             QMenu *menu = timer(p).timer.window()->menuBar()->actions().constFirst()->menu();
             menu->popup({});
         }},
        {"with options", [=](Program &p) { timer(p).timer.showHideAdvanced(); }},
        {"running", [=](Program &p) { timer(p).startCountdown(60); }},
        {"in the last seconds", [=](Program &p) { timer(p).startCountdown(5); }},
        {"in the alarm",
         [=](Program &p) {
             timer(p).startCountdown(5);
             p.clock.advance(6);
         }},
        {"on the full screen",
         [=](Program &p) {
             timer(p).startCountdown(5);
             timer(p).timer.startStopFullScreen();
         }},
        {"picking a date", [=](Program &p) { timer(p).timer.targetTime(); }},
        {"with a preset",
         [=](Program &p) {
             timer(p).typeName(QStringLiteral("Tea"));
             timer(p).timer.setPreset(1);
         }},
        {"stopwatch", [=](Program &p) { timer(p).timer.stopwatch(); }},
        {"chained and highlighted", [=](Program &p) {
             const TimerUser first = timer(p);
             p.controller.newWuffer();
             first.timer.setTargetWuffer(&timer(p).timer);
             first.timer.window()->highlightChain(true);
         }}};
    QTest::addColumn<int>("theme");
    QTest::addColumn<Act>("act");
    for (std::size_t theme = 0; theme < kThemes.size(); ++theme) {
        for (const auto &[name, act] : states)
            QTest::addRow("%s, %s", name, kThemes.at(theme).name) << int(theme) << act;
    }
}

void tst_ReadableTexts::aTimerIsReadableInEachState()
{
    QFETCH(const int, theme);
    QFETCH(const std::function<void(Program &)>, act);
    setTheme(kThemes.at(std::size_t(theme)));
    Program program;
    act(program);
    EVERY_TEXT_IS_READABLE;
}

void tst_ReadableTexts::aNewThemeCountsAtOnce()
{
    setTheme(kThemes[0]);
    Program program;
    Program::newest().startCountdown(5);
    for (const Theme &theme : {kThemes[1], kThemes[0], kThemes[2], kThemes[3], kThemes[1]}) {
        setTheme(theme);
        EVERY_TEXT_IS_READABLE;
    }
}

void tst_ReadableTexts::aNewThemeCountsAtOnceInTheCalendar()
{
    setTheme(kThemes[0]);
    Program program;
    Program::newest().timer.targetTime();
    for (const Theme &theme : {kThemes[1], kThemes[0], kThemes[2], kThemes[3]}) {
        setTheme(theme);
        EVERY_TEXT_IS_READABLE;
    }
}

void tst_ReadableTexts::theColorsThatATimerSetsAreThoseOfEveryTheme()
{
    for (const Theme &theme : kThemes) {
        setTheme(theme);
        Program program;
        TimerUser user = Program::newest();
        QCOMPARE(user.timer.currentTextColor(), QColor(Qt::black));
        user.timer.setPresetColor();
        QCOMPARE(user.timer.currentTextColor(), QColor(Qt::blue));
        QCOMPARE(user.elapsedColor(), QColor(Qt::blue));
        user.timer.removePresetColor();
        QCOMPARE(user.timer.currentTextColor(), QColor(Qt::black));
        user.startCountdown(5);
        QCOMPARE(user.timer.currentTextColor(), QColor::fromRgbF(0.9F, 0, 0));
    }
}

void tst_ReadableTexts::aHighlightedWindowHasDarkTexts()
{
    for (const Theme &theme : kThemes) {
        setTheme(theme);
        Program program;
        const TimerUser user = Program::newest();
        user.timer.window()->highlightChain(true);
        QCoreApplication::processEvents();
        const auto texts = TextContrasts::of(*user.timer.window());
        QVERIFY(texts.size() > 10);
        for (const TextContrasts::Text &text : texts)
            QVERIFY2(text.ink.lightness() < text.ground.lightness() ||
                         text.place.contains(QStringLiteral("Field")),
                     qPrintable(text.place));
        user.timer.window()->highlightChain(false);
    }
}

WUFFER_TEST(tst_ReadableTexts)
#include "tst_ReadableTexts.moc"
