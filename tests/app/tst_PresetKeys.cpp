#include "app/WufferApplication.h"
#include "app/WufferController.h"
#include "platform/Keyboard.h"
#include "support/Menus.h"
#include "support/TestMain.h"
#include "support/TimerFixture.h"

#include <QKeyEvent>

/// The keys of the presets on keyboards whose digit row gives other characters.
class tst_PresetKeys final : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void everyKeyOfTheRowOpensItsPreset();
    void everyKeyOfTheRowSavesItsPreset();
    void shiftMakesNoDifference_data();
    void shiftMakesNoDifference();
    void thePressIsNotTyped();
    void withoutItsModifierAPressIsTyped();
    void otherModifiersAreNoPreset_data();
    void otherModifiersAreNoPreset();
    void otherKeysAreNoPreset();
    void aHeldKeyOpensOneTimer();
    void aHeldKeyOpensOneTimerWhenItsRepeatsLookLikePresses_data();
    void aHeldKeyOpensOneTimerWhenItsRepeatsLookLikePresses();
    void aPressThatEndsFullScreenDoesNothingElse();
    void anOpenMenuKeepsTheKeys();
    void anOpenListKeepsTheKeys();
    void aSheetKeepsTheKeys();
    void withoutATimerNothingIsSaved();

private:
    static Wuffer &newest() { return *WufferApplication::getWuffers().back(); }
    static std::size_t count() { return WufferApplication::getWuffers().size(); }
    static QLineEdit &name() { return child<QLineEdit>(*newest().window(), "_titleField"); }

    /// Sends the press of a key with this symbol and this scan code, as the window system does if
    /// the press was no shortcut.
    static void press(Qt::Key key, Qt::KeyboardModifiers modifiers, quint32 number,
                      bool repeats = false)
    {
        QVERIFY(QTest::qWaitFor([] { return QApplication::activeWindow() != nullptr; }));
        QWindow *window = QApplication::activeWindow()->windowHandle();
        for (const QEvent::Type type : {QEvent::ShortcutOverride, QEvent::KeyPress}) {
            QKeyEvent event(type, key, modifiers, number, 0, 0, QString(QChar(key)), repeats);
            QCoreApplication::sendEvent(window, &event);
        }
    }
    QVariant minutesOf(int preset)
    {
        return _services->defaults.dictionaryForKey(Wuffer::keyForPreset(quint32(preset)))
            .value(QStringLiteral("minutes"));
    }

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

namespace
{
/// The characters of the digit row on a French keyboard.
constexpr std::array kFrenchRow{
    Qt::Key_Ampersand, Qt::Key_Eacute, Qt::Key_QuoteDbl,   Qt::Key_Apostrophe, Qt::Key_ParenLeft,
    Qt::Key_Minus,     Qt::Key_Egrave, Qt::Key_Underscore, Qt::Key_Ccedilla,   Qt::Key_Agrave};
constexpr quint32 kFirstNumber = 10;
} // namespace

void tst_PresetKeys::everyKeyOfTheRowOpensItsPreset()
{
    for (quint32 place = 0; place < kFrenchRow.size(); ++place) {
        activate(*newest().window());
        press(kFrenchRow.at(place), Keyboard::kCommand, kFirstNumber + place);
        QCOMPARE(count(), std::size_t(place + 2));
        QCOMPARE(newest().description(), Wuffer::stringForPreset(qint32(place + 1) % 10));
    }
}

void tst_PresetKeys::everyKeyOfTheRowSavesItsPreset()
{
    for (quint32 place = 0; place < kFrenchRow.size(); ++place) {
        newest().setFieldsWithTimeLeft(60.0 * (500 + place));
        const QVariant minutes = int(500 + place) % 60;
        press(kFrenchRow.at(place), Keyboard::kControl, kFirstNumber + place);
        QCOMPARE(minutesOf(int(place + 1) % 10), minutes);
    }
    QCOMPARE(count(), std::size_t(1));
}

void tst_PresetKeys::shiftMakesNoDifference_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::addColumn<Qt::KeyboardModifiers>("others");
    QTest::addColumn<quint32>("number");
    constexpr quint32 third = kFirstNumber + 2;
    constexpr quint32 thirdOfTheKeypad = 89;
    QTest::newRow("French") << Qt::Key_3 << Qt::KeyboardModifiers(Qt::ShiftModifier) << third;
    QTest::newRow("English") << Qt::Key_NumberSign << Qt::KeyboardModifiers(Qt::ShiftModifier)
                             << third;
    QTest::newRow("keypad") << Qt::Key_3 << Qt::KeyboardModifiers(Qt::KeypadModifier)
                            << thirdOfTheKeypad;
    QTest::newRow("keypad without Num Lock")
        << Qt::Key_3 << (Qt::KeypadModifier | Qt::ShiftModifier) << thirdOfTheKeypad;
}

void tst_PresetKeys::shiftMakesNoDifference()
{
    QFETCH(const Qt::Key, key);
    QFETCH(const Qt::KeyboardModifiers, others);
    QFETCH(const quint32, number);
    newest().setFieldsWithTimeLeft(7 * 60);
    press(key, Keyboard::kControl | others, number);
    QCOMPARE(minutesOf(3), QVariant(7));
    press(key, Keyboard::kCommand | others, number);
    QCOMPARE(count(), std::size_t(2));
    QCOMPARE(newest().description(), QStringLiteral("Wuffer - 0h 7m 0s"));
}

void tst_PresetKeys::thePressIsNotTyped()
{
    QLineEdit &field = name();
    field.setFocus();
    press(Qt::Key_Ampersand, Keyboard::kCommand, kFirstNumber);
    press(Qt::Key_Ampersand, Keyboard::kCommand, kFirstNumber, true);
    QCOMPARE(field.text(), QString());
}

void tst_PresetKeys::withoutItsModifierAPressIsTyped()
{
    name().setFocus();
    press(Qt::Key_Ampersand, Qt::NoModifier, kFirstNumber);
    press(Qt::Key_1, Qt::ShiftModifier, kFirstNumber);
    QCOMPARE(name().text(), QStringLiteral("&1"));
    QCOMPARE(count(), std::size_t(1));
}

void tst_PresetKeys::otherModifiersAreNoPreset_data()
{
    QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
    QTest::newRow("both") << (Keyboard::kCommand | Keyboard::kControl);
    QTest::newRow("another") << Qt::KeyboardModifiers(Qt::MetaModifier);
    QTest::newRow("another one, too") << (Keyboard::kCommand | Qt::MetaModifier);
    QTest::newRow("Alt Gr") << (Keyboard::kCommand | Qt::GroupSwitchModifier);
}

void tst_PresetKeys::otherModifiersAreNoPreset()
{
    QFETCH(const Qt::KeyboardModifiers, modifiers);
    newest().setFieldsWithTimeLeft(7 * 60);
    press(Qt::Key_Ampersand, modifiers, kFirstNumber);
    QCOMPARE(count(), std::size_t(1));
    QCOMPARE(minutesOf(1), QVariant(10));
}

void tst_PresetKeys::otherKeysAreNoPreset()
{
    for (const quint32 number : {0U, kFirstNumber - 1, kFirstNumber + 10, 255U})
        press(Qt::Key_Ampersand, Keyboard::kCommand, number);
    QCOMPARE(count(), std::size_t(1));
}

void tst_PresetKeys::aHeldKeyOpensOneTimer()
{
    for (const bool repeats : {false, true, true})
        press(Qt::Key_Ampersand, Keyboard::kCommand, kFirstNumber, repeats);
    QCOMPARE(count(), std::size_t(2));
}

void tst_PresetKeys::aHeldKeyOpensOneTimerWhenItsRepeatsLookLikePresses_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::newRow("French") << Qt::Key_Ampersand;
    QTest::newRow("English") << Qt::Key_1;
}

void tst_PresetKeys::aHeldKeyOpensOneTimerWhenItsRepeatsLookLikePresses()
{
    QFETCH(const Qt::Key, key);
    press(key, Keyboard::kCommand, kFirstNumber);
    for (const quint64 moment : {1000U, 1040U}) {
        for (const QEvent::Type type :
             {QEvent::KeyRelease, QEvent::ShortcutOverride, QEvent::KeyPress}) {
            QKeyEvent event(type, key, Keyboard::kCommand, kFirstNumber, 0, 0);
            event.setTimestamp(moment);
            event.setAccepted(false);
            QCoreApplication::sendEvent(QApplication::activeWindow()->windowHandle(), &event);
            // Qt would look for a shortcut if the ShortcutOverride event were not accepted.
            QCOMPARE(event.isAccepted(), type != QEvent::KeyRelease);
        }
    }
    QCOMPARE(count(), std::size_t(2));
}

void tst_PresetKeys::aPressThatEndsFullScreenDoesNothingElse()
{
    newest().setFieldsWithTimeLeft(60);
    newest().goPressed();
    newest().startStopFullScreen();
    press(Qt::Key_Ampersand, Keyboard::kCommand, kFirstNumber);
    QVERIFY(!WufferApplication::instance().cancelFullScreenMode());
    QCOMPARE(count(), std::size_t(1));
}

void tst_PresetKeys::anOpenMenuKeepsTheKeys()
{
    QMenu &file = menu(*newest().window(), QStringLiteral("File"));
    file.popup({});
    QVERIFY(QApplication::activePopupWidget());
    press(Qt::Key_Ampersand, Keyboard::kCommand, kFirstNumber);
    QCOMPARE(count(), std::size_t(1));
    file.close();
    QTRY_COMPARE(QApplication::activeWindow(), newest().window());
    press(Qt::Key_Ampersand, Keyboard::kCommand, kFirstNumber);
    QCOMPARE(count(), std::size_t(2));
}

void tst_PresetKeys::anOpenListKeepsTheKeys()
{
    newest().showHideAdvanced();
    auto &combo = child<QComboBox>(*newest().window(), "_finishedCombo");
    combo.showPopup();
    QVERIFY(QApplication::activePopupWidget());
    press(Qt::Key_Ampersand, Keyboard::kCommand, kFirstNumber);
    QCOMPARE(count(), std::size_t(1));
    combo.hidePopup();
}

void tst_PresetKeys::aSheetKeepsTheKeys()
{
    QWindow *timer = newest().window()->windowHandle();
    newest().targetTime();
    QTRY_VERIFY(QGuiApplication::focusWindow() && QGuiApplication::focusWindow() != timer);
    press(Qt::Key_Ampersand, Keyboard::kCommand, kFirstNumber);
    press(Qt::Key_Ampersand, Keyboard::kControl, kFirstNumber);
    QCOMPARE(count(), std::size_t(1));
    QCOMPARE(minutesOf(1), QVariant(10));
}

void tst_PresetKeys::withoutATimerNothingIsSaved()
{
    _controller->showConverter();
    newest().window()->close();
    QTRY_VERIFY(qobject_cast<QMainWindow *>(QApplication::activeWindow()) != nullptr);
    press(Qt::Key_Ampersand, Keyboard::kControl, kFirstNumber);
    QCOMPARE(minutesOf(1), QVariant(10));
    press(Qt::Key_Ampersand, Keyboard::kCommand, kFirstNumber);
    QCOMPARE(count(), std::size_t(1));
    QCOMPARE(newest().description(), QStringLiteral("Preset 1 - 0h 10m 0s"));
}

WUFFER_TEST(tst_PresetKeys)
#include "tst_PresetKeys.moc"
