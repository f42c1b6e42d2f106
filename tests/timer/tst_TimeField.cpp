#include "support/TestMain.h"
#include "timer/TimeField.h"

#include <QClipboard>
#include <QDropEvent>
#include <QInputMethodEvent>
#include <QMenu>
#include <QMimeData>
#include <QSignalSpy>
#include <QWheelEvent>

/// One of the fields that a time is typed into.
class tst_TimeField final : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void onlyNumbersCanBeTyped_data();
    void onlyNumbersCanBeTyped();
    void charactersThatAreNotSeenCannotBeTyped_data();
    void charactersThatAreNotSeenCannotBeTyped();
    void colonsAndLettersAreReported();
    void theKeysStepTheNumber_data();
    void theKeysStepTheNumber();
    void aStepIsAnEditThatSelects();
    void aStepThatChangesNothingIsNoEdit();
    void arrowsWithModifiersStepNothing();
    void theWheelStepsAFieldInFocus();
    void aSlowWheelStepsOnceForAWholeNotch();
    void theWheelPassesOverOtherFields();
    void whatIsPastedIsOffered();
    void theMenuPastesToo();
    void whatIsDroppedIsOffered();
    void aTextWithoutATimeIsRefused_data();
    void aTextWithoutATimeIsRefused();
    void aDragThatPassesOverLeavesTheSelection();
    void anEditCanBeUndone();
    void aComposedTextIsTypedCharacterByCharacter();
    void whatTheProgramWritesStaysAsItIs();

private:
    static void show(TimeField &field);
    static bool turn(TimeField &field, int eighths);
};

void tst_TimeField::show(TimeField &field)
{
    field.show();
    field.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&field));
    field.setFocus();
}

bool tst_TimeField::turn(TimeField &field, int eighths)
{
    QWheelEvent event({5, 5}, field.mapToGlobal(QPointF(5, 5)), {}, {0, eighths}, Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&field, &event);
    return event.isAccepted();
}

void tst_TimeField::onlyNumbersCanBeTyped_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("25") << QStringLiteral("25");
    QTest::newRow("Rice") << QString();
    QTest::newRow("2 5") << QStringLiteral("25");
    QTest::newRow("-5") << QStringLiteral("-5");
    QTest::newRow("5-") << QStringLiteral("5");
    QTest::newRow("1.5.5") << QStringLiteral("1.55");
    QTest::newRow("1,5") << QStringLiteral("1,5");
    QTest::newRow("1/2") << QStringLiteral("12");
    QTest::newRow("2x5") << QStringLiteral("25");
}

void tst_TimeField::charactersThatAreNotSeenCannotBeTyped_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("joins nothing") << QString(QChar(0x200C));
    QTest::newRow("a private one") << QString(QChar(0xE000));
    QTest::newRow("a picture") << QStringLiteral("🥚");
}

void tst_TimeField::charactersThatAreNotSeenCannotBeTyped()
{
    QFETCH(const QString, text);
    TimeField field;
    show(field);
    QKeyEvent press(QEvent::KeyPress, 0, Qt::NoModifier, text);
    QCoreApplication::sendEvent(&field, &press);
    QCOMPARE(field.text(), QString());
}

void tst_TimeField::onlyNumbersCanBeTyped()
{
    QFETCH(const QString, text);
    TimeField field;
    show(field);
    QTest::keyClicks(&field, QString::fromLatin1(QTest::currentDataTag()));
    QCOMPARE(field.text(), text);
}

void tst_TimeField::colonsAndLettersAreReported()
{
    TimeField field;
    show(field);
    const QSignalSpy colons(&field, &TimeField::colonTyped);
    const QSignalSpy letters(&field, &TimeField::letterTyped);
    QTest::keyClicks(&field, QStringLiteral("1:2s"));
    QCOMPARE(field.text(), QStringLiteral("12"));
    QCOMPARE(colons.size(), 1);
    QCOMPARE(letters.size(), 1);
    QCOMPARE(letters.constFirst().constFirst().toChar(), QChar(u's'));
}

void tst_TimeField::theKeysStepTheNumber_data()
{
    QTest::addColumn<QString>("before");
    QTest::addColumn<Qt::Key>("key");
    QTest::addColumn<QString>("after");
    const auto row = [](const char *name, const char *before, Qt::Key key, const char *after) {
        QTest::newRow(name) << QString::fromLatin1(before) << key << QString::fromLatin1(after);
    };
    row("up", "5", Qt::Key_Up, "6");
    row("down", "5", Qt::Key_Down, "4");
    row("page up", "5", Qt::Key_PageUp, "15");
    row("page down", "15", Qt::Key_PageDown, "5");
    row("never below 0", "5", Qt::Key_PageDown, "0");
    row("at 0", "0", Qt::Key_Down, "0");
    row("from below 0", "-7", Qt::Key_Up, "0");
    row("from nothing", "", Qt::Key_Up, "1");
    row("from what is no number", "five", Qt::Key_Up, "1");
    row("a fraction goes", "5.4", Qt::Key_Up, "6");
    row("at the end", "2147483647", Qt::Key_PageUp, "2147483647");
    row("near the end", "2147483646", Qt::Key_PageUp, "2147483647");
}

void tst_TimeField::theKeysStepTheNumber()
{
    QFETCH(const QString, before);
    QFETCH(const Qt::Key, key);
    QFETCH(const QString, after);
    TimeField field;
    show(field);
    field.setText(before);
    QTest::keyClick(&field, key);
    QCOMPARE(field.text(), after);
    field.setText(before);
    QTest::keyClick(&field, key, Qt::KeypadModifier);
    QCOMPARE(field.text(), after);
}

void tst_TimeField::aStepIsAnEditThatSelects()
{
    TimeField field;
    show(field);
    field.setText(QStringLiteral("5"));
    const QSignalSpy edits(&field, &TimeField::textEdited);
    QTest::keyClick(&field, Qt::Key_Up);
    QCOMPARE(edits.size(), 1);
    QVERIFY(field.isModified());
    QTest::keyClicks(&field, QStringLiteral("25"));
    QCOMPARE(field.text(), QStringLiteral("25"));
}

void tst_TimeField::aStepThatChangesNothingIsNoEdit()
{
    TimeField field;
    show(field);
    field.setText(QStringLiteral("0"));
    const QSignalSpy edits(&field, &TimeField::textEdited);
    QTest::keyClick(&field, Qt::Key_Down);
    QCOMPARE(edits.size(), 0);
    QVERIFY(!field.isModified());
}

void tst_TimeField::arrowsWithModifiersStepNothing()
{
    TimeField field;
    show(field);
    field.setText(QStringLiteral("5"));
    for (const Qt::KeyboardModifier modifier :
         {Qt::ControlModifier, Qt::AltModifier, Qt::ShiftModifier})
        QTest::keyClick(&field, Qt::Key_Up, modifier);
    QCOMPARE(field.text(), QStringLiteral("5"));
}

void tst_TimeField::theWheelStepsAFieldInFocus()
{
    TimeField field;
    show(field);
    field.setText(QStringLiteral("5"));
    QVERIFY(turn(field, 120));
    QCOMPARE(field.text(), QStringLiteral("6"));
    QVERIFY(turn(field, -240));
    QCOMPARE(field.text(), QStringLiteral("4"));
    QVERIFY(turn(field, -1200));
    QCOMPARE(field.text(), QStringLiteral("0"));
}

void tst_TimeField::aSlowWheelStepsOnceForAWholeNotch()
{
    TimeField field;
    show(field);
    field.setText(QStringLiteral("5"));
    turn(field, 50);
    turn(field, 50);
    QCOMPARE(field.text(), QStringLiteral("5"));
    turn(field, 50);
    QCOMPARE(field.text(), QStringLiteral("6"));
    turn(field, 90);
    QCOMPARE(field.text(), QStringLiteral("7"));
}

void tst_TimeField::theWheelPassesOverOtherFields()
{
    QWidget window;
    TimeField field(&window);
    QLineEdit other(&window);
    window.show();
    other.setFocus();
    field.setText(QStringLiteral("5"));
    QVERIFY(!turn(field, 120));
    QCOMPARE(field.text(), QStringLiteral("5"));
}

void tst_TimeField::whatIsPastedIsOffered()
{
    TimeField field;
    show(field);
    field.setText(QStringLiteral("7"));
    const QSignalSpy offers(&field, &TimeField::textOffered);
    QGuiApplication::clipboard()->setText(QStringLiteral("1h 5m"));
    QTest::keySequence(&field, QKeySequence::Paste);
    QCOMPARE(offers.size(), 1);
    QCOMPARE(offers.constFirst().constFirst().toString(), QStringLiteral("1h 5m"));
    QCOMPARE(field.text(), QStringLiteral("7"));
}

void tst_TimeField::theMenuPastesToo()
{
    TimeField field;
    show(field);
    const QSignalSpy offers(&field, &TimeField::textOffered);
    QGuiApplication::clipboard()->setText(QStringLiteral("5:30"));
    QContextMenuEvent event(QContextMenuEvent::Keyboard, {}, field.mapToGlobal(QPoint()));
    QCoreApplication::sendEvent(&field, &event);
    auto *menu = field.findChild<QMenu *>();
    QVERIFY(menu);
    for (QAction *item : menu->actions()) {
        if (item->text().startsWith(QStringLiteral("&Paste")))
            item->trigger();
    }
    menu->close();
    QCOMPARE(offers.size(), 1);
    QCOMPARE(field.text(), QString());
}

void tst_TimeField::whatIsDroppedIsOffered()
{
    TimeField field;
    show(field);
    field.setText(QStringLiteral("7"));
    const QSignalSpy offers(&field, &TimeField::textOffered);
    QMimeData data;
    data.setText(QStringLiteral("90s"));
    QDragEnterEvent enter({5, 5}, Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton,
                          Qt::NoModifier);
    QCoreApplication::sendEvent(&field, &enter);
    QVERIFY(enter.isAccepted());
    QDropEvent drop({5, 5}, Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&field, &drop);
    QVERIFY(drop.isAccepted());
    QCOMPARE(drop.dropAction(), Qt::CopyAction);
    QCOMPARE(offers.size(), 1);
    QCOMPARE(offers.constFirst().constFirst().toString(), QStringLiteral("90s"));
    QCOMPARE(field.text(), QStringLiteral("7"));
}

void tst_TimeField::aTextWithoutATimeIsRefused_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("isFile");
    QTest::newRow("a word") << QStringLiteral("Rice") << false;
    QTest::newRow("nothing") << QString() << false;
    QTest::newRow("a file") << QStringLiteral("file:///5") << true;
    QTest::newRow("a file that also says a time") << QStringLiteral("5:30") << true;
}

void tst_TimeField::aTextWithoutATimeIsRefused()
{
    QFETCH(const QString, text);
    QFETCH(const bool, isFile);
    TimeField field;
    show(field);
    const QSignalSpy offers(&field, &TimeField::textOffered);
    QMimeData data;
    if (isFile)
        data.setUrls({QUrl(QStringLiteral("file:///5"))});
    data.setText(text);
    QDragEnterEvent enter({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&field, &enter);
    QVERIFY(!enter.isAccepted());
    QCOMPARE(offers.size(), 0);
}

void tst_TimeField::aDragThatPassesOverLeavesTheSelection()
{
    TimeField field;
    show(field);
    field.setText(QStringLiteral("4"));
    field.selectAll();
    QMimeData data;
    data.setText(QStringLiteral("90s"));
    QDragEnterEvent enter({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&field, &enter);
    QDragMoveEvent move({9, 5}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&field, &move);
    QDragLeaveEvent leave;
    QCoreApplication::sendEvent(&field, &leave);
    QCOMPARE(field.selectedText(), QStringLiteral("4"));
}

void tst_TimeField::anEditCanBeUndone()
{
    TimeField field;
    field.setText(QStringLiteral("4"));
    const QSignalSpy edits(&field, &TimeField::textEdited);
    field.edit(QStringLiteral("25"));
    QCOMPARE(edits.size(), 1);
    QVERIFY(field.isModified());
    field.undo();
    QCOMPARE(field.text(), QStringLiteral("4"));
}

void tst_TimeField::aComposedTextIsTypedCharacterByCharacter()
{
    TimeField field;
    show(field);
    const QSignalSpy colons(&field, &TimeField::colonTyped);
    QInputMethodEvent composed;
    composed.setCommitString(QStringLiteral("1a2:："));
    QCoreApplication::sendEvent(&field, &composed);
    QCOMPARE(field.text(), QStringLiteral("12"));
    QCOMPARE(colons.size(), 2);
}

void tst_TimeField::whatTheProgramWritesStaysAsItIs()
{
    TimeField field;
    show(field);
    field.setText(QStringLiteral("five min"));
    QCOMPARE(field.text(), QStringLiteral("five min"));
    QVERIFY(!field.isModified());
}

WUFFER_TEST(tst_TimeField)
#include "tst_TimeField.moc"
