#include "app/WufferApplication.h"
#include "app/WufferController.h"
#include "platform/Keyboard.h"
#include "support/Menus.h"
#include "support/TestMain.h"
#include "support/TimerFixture.h"

/// The menu of presets, and the keys that open and save them.
class tst_PresetsMenu final : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void aFirstLaunchListsTenPresets();
    void theSubmenuListsThemForSaving();
    void everyPresetHasItsKeys();
    void aPresetOpensInANewTimer();
    void presetZeroOpensWithZero();
    void anEmptiedPresetOpensATimerOnly();
    void aPresetOpensWithoutATimer();
    void aPresetStartsWhenTheUserWishesSo();
    void aPresetOpensOneStepOffTheWindowThatHoldsIt();
    void withoutAnItemNothingOpens();
    void theKeySavesTheActiveTimer();
    void savingRenamesTheItems();
    void savingWithoutAnActiveTimerDoesNothing();
    void aRunningTimerIsNotSavedAndTheMenuStays();
    void savingNeedsATimer();
    void aTitleIsShownAsItIs();
    void presetOneOpensAtLaunch();
    void digitsOfTheKeypadDoTheSame();
    void aHeldKeyOpensOneTimer();

private:
    static Wuffer &newest() { return *WufferApplication::getWuffers().back(); }
    static QMenu &presets() { return menu(*newest().window(), QStringLiteral("Presets")); }
    static QMenu &saving() { return *presets().actions().last()->menu(); }
    static void press(int digit, Qt::KeyboardModifiers modifiers)
    {
        QTest::keyClick(QGuiApplication::focusWindow(), Qt::Key(Qt::Key_0 + digit), modifiers);
    }
    static std::size_t count() { return WufferApplication::getWuffers().size(); }

    // Each test gets new services and one timer, which is active.
    std::unique_ptr<TestServices> _services;
    std::unique_ptr<WufferController> _controller;

private Q_SLOTS:
    void init()
    {
        Test::init();
        _services = std::make_unique<TestServices>();
        _controller = std::make_unique<WufferController>();
        _controller->awakeFromNib();
        activate(*newest().window());
    }
    void cleanup()
    {
        _controller.reset();
        _services.reset();
    }
};

void tst_PresetsMenu::aFirstLaunchListsTenPresets()
{
    const QStringList expected{QStringLiteral("Preset 1 - 0h 10m 0s"),
                               QStringLiteral("Preset 2 - 0h 20m 0s"),
                               QStringLiteral("Preset 3 - 0h 30m 0s"),
                               QStringLiteral("Preset 4 - 0h 40m 0s"),
                               QStringLiteral("Preset 5 - 0h 50m 0s"),
                               QStringLiteral("Preset 6 - 0h 60m 0s"),
                               QStringLiteral("Preset 7 - 0h 70m 0s"),
                               QStringLiteral("Preset 8 - 0h 80m 0s"),
                               QStringLiteral("Preset 9 - 0h 90m 0s"),
                               QStringLiteral("Preset 0 - 0h 0m 0s"),
                               QStringLiteral("-"),
                               QStringLiteral("Save Wuffer to Preset")};
    QCOMPARE(textsOf(presets()), expected);
    for (int number = 0; number < 10; ++number) {
        const QVariantMap record =
            _services->defaults.dictionaryForKey(Wuffer::keyForPreset(quint32(number)));
        QCOMPARE(record.value(QStringLiteral("minutes")), QVariant(number * 10));
    }
}

void tst_PresetsMenu::theSubmenuListsThemForSaving()
{
    const QStringList texts = textsOf(saving());
    QCOMPARE(texts.size(), 12);
    QCOMPARE(texts.at(0), QStringLiteral("Shortcut: Hold Control and press a number key"));
    QVERIFY(!saving().actions().at(0)->isEnabled());
    QCOMPARE(texts.at(1), QStringLiteral("-"));
    QCOMPARE(texts.at(2), QStringLiteral("⌘1 (Overwrite Preset 1 - 0h 10m 0s)"));
    QCOMPARE(texts.at(10), QStringLiteral("⌘9 (Overwrite Preset 9 - 0h 90m 0s)"));
    QCOMPARE(texts.at(11), QStringLiteral("⌘0 (Overwrite Preset 0 - 0h 0m 0s)"));
}

void tst_PresetsMenu::everyPresetHasItsKeys()
{
    for (int place = 0; place < 10; ++place) {
        const int number = (place + 1) % 10;
        const QAction &open = *presets().actions().at(place);
        const QAction &save = *saving().actions().at(place + 2);
        const auto key = Qt::Key(Qt::Key_0 + number);
        QCOMPARE(open.shortcut(), QKeySequence(QKeyCombination(Keyboard::kCommand, key)));
        QCOMPARE(save.shortcut(), QKeySequence(QKeyCombination(Keyboard::kControl, key)));
        QCOMPARE(open.data().toInt(), 1000 + number);
        QCOMPARE(save.data().toInt(), 1000 + number);
        QVERIFY(open.isEnabled());
        QVERIFY(save.isEnabled());
    }
}

void tst_PresetsMenu::aPresetOpensInANewTimer()
{
    press(3, Keyboard::kCommand);
    QCOMPARE(count(), std::size_t(2));
    QCOMPARE(newest().description(), QStringLiteral("Preset 3 - 0h 30m 0s"));
    QCOMPARE(newest().currentTextColor(), QColor(Qt::blue));
    QVERIFY(!newest().isRunning());
    QVERIFY(newest().window()->isVisible());
}

void tst_PresetsMenu::presetZeroOpensWithZero()
{
    press(0, Keyboard::kCommand);
    QCOMPARE(newest().description(), QStringLiteral("Preset 0 - 0h 0m 0s"));
}

void tst_PresetsMenu::anEmptiedPresetOpensATimerOnly()
{
    _services->defaults.removeObjectForKey(QStringLiteral("Preset 3"));
    press(3, Keyboard::kCommand);
    QCOMPARE(count(), std::size_t(2));
    QCOMPARE(newest().description(), QStringLiteral("Wuffer - 0h 0m 0s"));
    QCOMPARE(newest().currentTextColor(), QColor(Qt::black));
}

void tst_PresetsMenu::aPresetOpensWithoutATimer()
{
    _controller->showConverter();
    newest().window()->close();
    QTRY_VERIFY(QApplication::activeWindow() != nullptr);
    press(3, Keyboard::kCommand);
    QCOMPARE(newest().description(), QStringLiteral("Preset 3 - 0h 30m 0s"));
}

void tst_PresetsMenu::aPresetStartsWhenTheUserWishesSo()
{
    _services->defaults.setObject(1, QStringLiteral("autoStartPresets"));
    press(3, Keyboard::kCommand);
    QVERIFY(newest().isRunning());
    QCOMPARE(newest().statusString(), QStringLiteral("30m 0s"));
}

void tst_PresetsMenu::aPresetOpensOneStepOffTheWindowThatHoldsIt()
{
    newest().window()->move(100, 80);
    newest().setPreset(3);
    press(3, Keyboard::kCommand);
    const QPoint step = newest().window()->pos() - QPoint(100, 80);
    QVERIFY(step.x() > 10 && step.x() < 60);
    QCOMPARE(step.x(), step.y());
}

void tst_PresetsMenu::withoutAnItemNothingOpens()
{
    _controller->preset(nullptr);
    QCOMPARE(count(), std::size_t(1));
}

void tst_PresetsMenu::theKeySavesTheActiveTimer()
{
    Wuffer &first = newest();
    first.setFieldsWithTimeLeft(240);
    _controller->newWuffer();
    activate(*first.window());
    press(4, Keyboard::kControl);
    QCOMPARE(_services->defaults.dictionaryForKey(QStringLiteral("Preset 4"))
                 .value(QStringLiteral("minutes")),
             QVariant(4));
    QCOMPARE(first.currentTextColor(), QColor(Qt::blue));
    QCOMPARE(newest().currentTextColor(), QColor(Qt::black));
}

void tst_PresetsMenu::savingRenamesTheItems()
{
    child<QLineEdit>(*newest().window(), "_titleField").setText(QStringLiteral("Tea"));
    press(1, Keyboard::kControl);
    QCOMPARE(presets().actions().at(0)->text(), QStringLiteral("Tea - 0h 0m 0s"));
    QCOMPARE(saving().actions().at(2)->text(), QStringLiteral("⌘1 (Overwrite Tea - 0h 0m 0s)"));
    QCOMPARE(presets().actions().size(), 12);
}

void tst_PresetsMenu::savingWithoutAnActiveTimerDoesNothing()
{
    _controller->showConverter();
    QTRY_VERIFY(WufferApplication::keyWuffer() == nullptr);
    const QVariantMap before = _services->defaults.dictionaryForKey(QStringLiteral("Preset 4"));
    saving().actions().at(5)->trigger();
    QCOMPARE(_services->defaults.dictionaryForKey(QStringLiteral("Preset 4")), before);
    QCOMPARE(newest().currentTextColor(), QColor(Qt::black));
}

void tst_PresetsMenu::aRunningTimerIsNotSavedAndTheMenuStays()
{
    const QStringList before = textsOf(saving());
    newest().setFieldsWithTimeLeft(60);
    newest().goPressed();
    press(5, Keyboard::kControl);
    QCOMPARE(textsOf(saving()), before);
    QCOMPARE(newest().statusString(), QStringLiteral("1m 0s"));
}

void tst_PresetsMenu::savingNeedsATimer()
{
    _controller->showConverter();
    const QAction &save = *saving().actions().at(2);
    const QAction &open = *presets().actions().at(0);
    QVERIFY(save.isEnabled());
    newest().window()->close();
    QVERIFY(!save.isEnabled());
    QVERIFY(open.isEnabled());
    _controller->newWuffer();
    QTRY_VERIFY(save.isEnabled());
}

void tst_PresetsMenu::aTitleIsShownAsItIs()
{
    child<QLineEdit>(*newest().window(), "_titleField").setText(QStringLiteral("Fish & <i>Chips"));
    press(2, Keyboard::kControl);
    QCOMPARE(presets().actions().at(1)->text(), QStringLiteral("Fish && <i>Chips - 0h 0m 0s"));
    QCOMPARE(presets().actions().at(1)->shortcut(),
             QKeySequence(QKeyCombination(Keyboard::kCommand, Qt::Key_2)));
}

void tst_PresetsMenu::presetOneOpensAtLaunch()
{
    newest().window()->close();
    _services->defaults.setObject(QStringLiteral("Open and Start Preset ⌘1"),
                                  QStringLiteral("launchBehavior"));
    WufferController controller;
    controller.awakeFromNib();
    QCOMPARE(newest().description(), QStringLiteral("Preset 1 - 0h 10m 0s"));
    QVERIFY(newest().isRunning());
}

void tst_PresetsMenu::digitsOfTheKeypadDoTheSame()
{
    press(3, Keyboard::kCommand | Qt::KeypadModifier);
    QCOMPARE(newest().description(), QStringLiteral("Preset 3 - 0h 30m 0s"));
}

void tst_PresetsMenu::aHeldKeyOpensOneTimer()
{
    QWindow *window = QGuiApplication::focusWindow();
    for (const bool repeats : {false, true, true})
        QTest::simulateEvent(window, true, Qt::Key_3, Keyboard::kCommand, {}, repeats);
    QCOMPARE(count(), std::size_t(2));
}

WUFFER_TEST(tst_PresetsMenu)
#include "tst_PresetsMenu.moc"
