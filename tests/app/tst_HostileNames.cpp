#include "app/HomeWindow.h"
#include "app/StatusDescription.h"
#include "app/WufferApplication.h"
#include "app/WufferController.h"
#include "base/NotificationCenter.h"
#include "rules/NameText.h"
#include "support/Menus.h"
#include "support/TestMain.h"
#include "support/TimerFixture.h"

#include <QElapsedTimer>
#include <QWindow>

namespace
{
/// The greatest width of a window or a menu, in pixels: that of the narrowest screen in use.
constexpr int kScreen = 1024;

const QString kPreset = QStringLiteral("Preset 1");

/// A menu item's text as the user reads it, without the ampersands for mnemonics.
QString read(QString text)
{
    return text.replace(QStringLiteral("&&"), QStringLiteral("&"));
}
} // namespace

/// Names that look like markup or commands, or are extremely long. Every place shows them as plain
/// text and stays within the screen.
class tst_HostileNames final : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void theTimersWindowShowsIt_data() { names(); }
    void theTimersWindowShowsIt();
    void theMenuOfPresetsShowsIt_data() { names(); }
    void theMenuOfPresetsShowsIt();
    void theHomeWindowShowsIt_data() { names(); }
    void theHomeWindowShowsIt();
    void theMenuOfLinksShowsIt_data() { names(); }
    void theMenuOfLinksShowsIt();
    void theFinishActionsShowIt_data() { names(); }
    void theFinishActionsShowIt();
    void theStatusItemShowsIt_data() { names(); }
    void theStatusItemShowsIt();
    void theDisplayShowsItAtTheEnd_data() { names(); }
    void theDisplayShowsItAtTheEnd();
    void itIsKeptAsItWasWritten_data() { names(); }
    void itIsKeptAsItWasWritten();

private:
    static void names();

    void openPreset(const QString &name)
    {
        store(name);
        if (WufferApplication::getWuffers().empty())
            _controller->awakeFromNib();
        timer().loadSettingsFromDefaultsWithKey(kPreset, false);
    }
    void store(const QString &name)
    {
        _services->defaults.setObject(QVariantMap{{QStringLiteral("title"), name}}, kPreset);
        NotificationCenter::defaultCenter().postNotificationName(
            QStringLiteral("presetsChangedNotification"), nullptr);
    }
    static Wuffer &timer() { return *WufferApplication::getWuffers().front(); }
    static QAction &item(QMenu &menu, int place)
    {
        Q_EMIT menu.aboutToShow();
        return *menu.actions().at(place);
    }

    std::unique_ptr<TestServices> _services;
    std::unique_ptr<WufferController> _controller;

private Q_SLOTS:
    void init()
    {
        Test::init();
        _services = std::make_unique<TestServices>();
        _controller = std::make_unique<WufferController>();
    }
    void cleanup()
    {
        _controller.reset();
        _services.reset();
    }
};

void tst_HostileNames::names()
{
    QTest::addColumn<QString>("name");
    // The name in one line, for places with room for one line only.
    QTest::addColumn<QString>("line");
    const auto add = [](const char *row, const QString &name) {
        QTest::newRow(row) << name << name;
    };
    add("plain", QStringLiteral("Tea"));
    add("markup", QStringLiteral("<b>Tea</b><img src='/etc/passwd'>"));
    add("entities", QStringLiteral("Fish &amp; Chips & &lt;Peas&gt;"));
    add("places for values", QStringLiteral("%s %n %1 %2 %L1 %%"));
    add("the mark for changes", QStringLiteral("Tea [*]"));
    add("right to left", QStringLiteral("שלום \u202Eaet"));
    add("combining", QStringLiteral("a\u0301\u0308") + QString(60, QChar(0x0301)));
    add("emoji", QStringLiteral("👩‍👩‍👧‍👦🏳️‍🌈🔔"));
    QTest::newRow("lines") << QStringLiteral("Tea\nMilk\r\nSugar")
                           << QStringLiteral("Tea Milk Sugar");
    QTest::newRow("tab") << QStringLiteral("Tea\tCtrl+Q") << QStringLiteral("Tea Ctrl+Q");
    const QString long1(10'000, QLatin1Char('W'));
    QTest::newRow("10000 characters") << long1 << long1;
    const QString long2 = QStringLiteral("<b>&W</b> ").repeated(1000);
    QTest::newRow("10000 characters of markup") << long2 << long2.trimmed();
}

void tst_HostileNames::theTimersWindowShowsIt()
{
    QFETCH(const QString, name);
    openPreset(QStringLiteral("Tea"));
    const QSize size = timer().window()->size();
    const QSize least = timer().window()->minimumSizeHint();

    openPreset(name);

    QString title = name.left(500);
    title.replace(QLatin1Char('\n'), QLatin1Char(' ')).replace(QLatin1Char('\r'), QLatin1Char(' '));
    title.replace(QLatin1Char('\t'), QLatin1Char(' '));
    QCOMPARE(timer().window()->windowHandle()->title(), title);
    QCOMPARE(child<QLineEdit>(*timer().window(), "_titleField").text(), name);
    QCOMPARE(child<DisplayLabel>(*timer().window(), "_resultLabel").text(), name);
    QCOMPARE(timer().window()->size(), size);
    QCOMPARE(timer().window()->minimumSizeHint(), least);
    QElapsedTimer elapsed;
    elapsed.start();
    timer().window()->grab();
    QVERIFY2(elapsed.elapsed() < 1000, qPrintable(QString::number(elapsed.elapsed())));
}

void tst_HostileNames::theMenuOfPresetsShowsIt()
{
    QFETCH(const QString, name);
    QFETCH(const QString, line);
    openPreset(name);
    QMenu &presets = menu(*timer().window(), QStringLiteral("Presets"));

    const QString shown = read(item(presets, 0).text());
    QVERIFY2(shown.startsWith(NameText::isolated(line).left(40)), qPrintable(shown));
    QVERIFY(shown.endsWith(QStringLiteral(" - 0h 0m 0s")));
    QVERIFY(presets.sizeHint().width() < kScreen);
    QMenu &save = *item(presets, 11).menu();
    QVERIFY(read(item(save, 2).text())
                .contains(QStringLiteral("(Overwrite ") + NameText::isolated(line).left(25)));
    QVERIFY(save.sizeHint().width() < kScreen);
}

void tst_HostileNames::theHomeWindowShowsIt()
{
    QFETCH(const QString, name);
    QFETCH(const QString, line);
    _services->defaults.setObject(QStringLiteral("Do Nothing"), QStringLiteral("launchBehavior"));
    store(name);
    _controller->awakeFromNib();
    QWidget *home = nullptr;
    const auto isHome = [&] {
        for (QWidget *each : QApplication::topLevelWidgets()) {
            if (each->isVisible() && qobject_cast<HomeWindow *>(each))
                home = each;
        }
        return home != nullptr;
    };
    QTRY_VERIFY(isHome());

    const auto buttons = home->findChildren<QPushButton *>();
    const auto found = std::ranges::find_if(buttons, [&](const QPushButton *button) {
        return button->accessibleName().startsWith(NameText::isolated(line).left(40));
    });
    QVERIFY(found != buttons.end());
    QVERIFY(home->width() < kScreen);
    const QString toolTip = (*found)->toolTip();
    QVERIFY(toolTip.isEmpty() || Qt::mightBeRichText(toolTip));
    QVERIFY(!toolTip.contains(QStringLiteral("<b>")));
}

void tst_HostileNames::theMenuOfLinksShowsIt()
{
    QFETCH(const QString, name);
    QFETCH(const QString, line);
    openPreset(name);
    _controller->newWuffer();
    WufferWindow &other = *WufferApplication::getWuffers().back()->window();
    activate(other);
    QMenu &links = menu(other, QStringLiteral("When Finished, Start"));

    QStringList texts;
    Q_EMIT links.aboutToShow();
    for (const QAction *action : links.actions())
        texts << read(action->text());

    QVERIFY2(texts.last().startsWith(NameText::isolated(line).left(40)) ||
                 texts.at(2).startsWith(NameText::isolated(line).left(40)),
             qPrintable(texts.join(QLatin1Char('|'))));
    QVERIFY(links.sizeHint().width() < kScreen);
}

void tst_HostileNames::theFinishActionsShowIt()
{
    QFETCH(const QString, name);
    QFETCH(const QString, line);
    openPreset(name);
    TimerUser user;
    user.chooseFinish(QStringLiteral("Start a Preset"));

    QVERIFY(user.picker().itemText(0).startsWith(NameText::isolated(line).left(40)));
    QVERIFY(user.picker().sizeHint().width() < 400);
    user.timer.window()->adjustSize();
    QVERIFY(user.timer.window()->width() < kScreen);

    user.timer.setTargetWuffer(&timer());
    QVERIFY(user.picker().itemText(0).startsWith(NameText::isolated(line).left(40)));
    QVERIFY(user.picker().sizeHint().width() < 400);
}

void tst_HostileNames::theStatusItemShowsIt()
{
    QFETCH(const QString, name);
    QFETCH(const QString, line);
    openPreset(name);

    const QString shown = StatusDescription<Wuffer>::line(timer());

    QVERIFY(shown.startsWith(NameText::isolated(line).left(40)));
    QVERIFY(shown.size() < 200);
    QVERIFY(!shown.contains(QLatin1Char('\n')) && !shown.contains(QLatin1Char('\t')));
}

void tst_HostileNames::theDisplayShowsItAtTheEnd()
{
    QFETCH(const QString, name);
    QFETCH(const QString, line);
    _services->defaults.setObject(name, QStringLiteral("finishedText"));
    _services->defaults.setObject(QStringLiteral("Do Nothing"), QStringLiteral("launchBehavior"));
    _controller->awakeFromNib();
    TimerUser user;
    user.timer.showWufferWindow();
    const QSize size = user.timer.window()->size();
    user.startCountdown(1);
    _services->clock.advance(1.5);

    QCOMPARE(user.display(), name);
    user.timer.window()->grab();
    QCOMPARE(user.timer.window()->size(), size);
    const QString shown = _services->statusItem.attributedTitle().text;
    QVERIFY2(shown.startsWith(line.left(40)), qPrintable(shown));
    QVERIFY(shown.size() < 100);
}

void tst_HostileNames::itIsKeptAsItWasWritten()
{
    QFETCH(const QString, name);
    openPreset(name);

    timer().storeSettingsInDefaultsWithKey(kPreset);
    _services->defaults.synchronize();

    const QVariantMap record = UserDefaults(_services->settingsPath()).dictionaryForKey(kPreset);
    QCOMPARE(record.value(QStringLiteral("title")).toString(), name);
}

WUFFER_TEST(tst_HostileNames)
#include "tst_HostileNames.moc"
