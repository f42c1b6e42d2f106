#include "platform/Keyboard.h"
#include "support/TestMain.h"
#include "support/TimerFixture.h"

#include <QDrag>
#include <QDragEnterEvent>
#include <QMimeData>

namespace
{
const QString kType = QStringLiteral("WufferWindow");

QColor background(const TimerUser &user)
{
    return user.timer.window()->palette().color(QPalette::Window);
}

/// Moves the mouse this many pixels to the right over the widget, with a button and Control held.
void drag(QWidget &widget, Qt::MouseButton button, QPoint from, int way)
{
    const QPoint to = from + QPoint(way, 0);
    QMouseEvent move(QEvent::MouseMove, to, widget.mapToGlobal(to), Qt::NoButton, button,
                     Keyboard::kControl);
    QCoreApplication::sendEvent(&widget, &move);
}

/// A distance that starts a drag, in pixels.
int far()
{
    return QApplication::startDragDistance();
}
} // namespace

/// Drags from a timer's window and over it. Only a real drag has a source, so the tests on a
/// desktop cover those; here are the rules that need no source.
class tst_LinkDrag final : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void highlightingShowsTheWholeChain();
    void theHighlightIsReadableInEveryTheme();
    void whatAnotherProgramDragsIsRefused_data();
    void whatAnotherProgramDragsIsRefused();
    void leavingWithoutADragIsHarmless();
    void thePictureIsThere();
    void aPressThatDoesNotMoveIsNoDrag();
    void aDragBeginsAtTheDistanceOfTheDesktop_data();
    void aDragBeginsAtTheDistanceOfTheDesktop();
    void aPressIsForgottenWhenItEnds();
    void aPressIsForgottenWhenASheetComesUp();
    void aDragBeginsOnWhatIsDisabled_data();
    void aDragBeginsOnWhatIsDisabled();
    void aPressOnWhatIsEnabledIsNoDrag();
};

void tst_LinkDrag::highlightingShowsTheWholeChain()
{
    const TimerFixture t;
    const TimerUser second;
    const TimerUser third;
    const TimerUser stranger;
    t.timer.setTargetWuffer(&second.timer);
    second.timer.setTargetWuffer(&third.timer);
    const QColor normal = background(t);
    QVERIFY(normal != QColor(Qt::white));
    second.timer.window()->highlightChain(true);
    for (const TimerUser *user : std::initializer_list<const TimerUser *>{&t, &second, &third})
        QCOMPARE(background(*user), QColor(Qt::white));
    QCOMPARE(background(stranger), normal);
    third.timer.window()->highlightChain(false);
    for (const TimerUser *user : std::initializer_list<const TimerUser *>{&t, &second, &third})
        QCOMPARE(background(*user), normal);
}

void tst_LinkDrag::theHighlightIsReadableInEveryTheme()
{
    const QPalette light = QApplication::palette();
    QPalette dark = light;
    dark.setColor(QPalette::Window, QColor(40, 40, 40));
    dark.setColor(QPalette::WindowText, Qt::white);
    QApplication::setPalette(dark);
    {
        const TimerFixture t;
        const auto &box = t.part<QCheckBox>("_fullScreenBox");
        QCOMPARE(box.palette().color(QPalette::WindowText), QColor(Qt::white));
        t.timer.window()->highlightChain(true);
        QCOMPARE(box.palette().color(QPalette::Window), QColor(Qt::white));
        QCOMPARE(box.palette().color(QPalette::WindowText), QColor(Qt::black));
        t.timer.window()->highlightChain(false);
        QCOMPARE(box.palette().color(QPalette::WindowText), QColor(Qt::white));
        // The colours follow a later change of the theme.
        QApplication::setPalette(light);
        QTRY_COMPARE(background(t), light.color(QPalette::Window));
    }
    QApplication::setPalette(light);
}

void tst_LinkDrag::whatAnotherProgramDragsIsRefused_data()
{
    QTest::addColumn<QString>("type");
    QTest::newRow("a link of its own") << kType;
    QTest::newRow("a text") << QStringLiteral("text/plain");
    QTest::newRow("files") << QStringLiteral("text/uri-list");
}

void tst_LinkDrag::whatAnotherProgramDragsIsRefused()
{
    QFETCH(const QString, type);
    const TimerFixture t;
    QMimeData data;
    data.setData(type, {});
    WufferWindow &window = *t.timer.window();
    const QColor normal = background(t);

    QDragEnterEvent enter(QPoint(5, 5), Qt::LinkAction, &data, Qt::LeftButton, {});
    QCoreApplication::sendEvent(&window, &enter);
    QVERIFY(!enter.isAccepted());
    QCOMPARE(background(t), normal);
    QDropEvent drop(QPointF(5, 5), Qt::LinkAction, &data, Qt::LeftButton, {});
    QCoreApplication::sendEvent(&window, &drop);
    QVERIFY(!drop.isAccepted());
    QVERIFY(!t.timer.isChained());
}

void tst_LinkDrag::leavingWithoutADragIsHarmless()
{
    const TimerFixture t;
    const QColor normal = background(t);
    QDragLeaveEvent leave;
    QCoreApplication::sendEvent(t.timer.window(), &leave);
    QCOMPARE(background(t), normal);
}

void tst_LinkDrag::thePictureIsThere()
{
    const QPixmap picture(QStringLiteral(":/images/chain.png"));
    QCOMPARE(picture.size(), QSize(32, 32));
}

void tst_LinkDrag::aPressThatDoesNotMoveIsNoDrag()
{
    const TimerFixture t;
    WufferWindow &window = *t.timer.window();
    window.show();
    for (const Qt::MouseButton button : {Qt::LeftButton, Qt::RightButton}) {
        QTest::mousePress(&window, button, Keyboard::kControl, QPoint(4, 60));
        drag(window, button, QPoint(4, 60), 1);
        QTest::mouseRelease(&window, button, Keyboard::kControl, QPoint(5, 60));
        QVERIFY(window.findChildren<QDrag *>().isEmpty());
    }
}

void tst_LinkDrag::aDragBeginsAtTheDistanceOfTheDesktop_data()
{
    QTest::addColumn<Qt::MouseButton>("button");
    QTest::newRow("left, with Control") << Qt::LeftButton;
    QTest::newRow("right") << Qt::RightButton;
}

void tst_LinkDrag::aDragBeginsAtTheDistanceOfTheDesktop()
{
    QFETCH(const Qt::MouseButton, button);
    const TimerFixture t;
    WufferWindow &window = *t.timer.window();
    window.show();
    const QPoint from(4, 60);
    QTest::mousePress(&window, button, Keyboard::kControl, from);
    drag(window, button, from, far() - 1);
    QVERIFY(window.findChildren<QDrag *>().isEmpty());
    // The offscreen platform ends a drag at once and writes this warning.
    QTest::ignoreMessage(QtWarningMsg, "Unimplemented code.");
    drag(window, button, from, far());
    const QList<QDrag *> drags = window.findChildren<QDrag *>();
    QCOMPARE(drags.size(), 1);
    QCOMPARE(drags.first()->mimeData()->formats(), QStringList{kType});
    QVERIFY(!drags.first()->pixmap().isNull());
    QVERIFY(!t.timer.isChained());
}

void tst_LinkDrag::aPressIsForgottenWhenItEnds()
{
    const TimerFixture t;
    WufferWindow &window = *t.timer.window();
    window.show();
    QTest::mouseClick(&window, Qt::LeftButton, {}, QPoint(4, 60));
    // Drags from a button that was pressed after the click had ended.
    QTest::mousePress(&t.goButton(), Qt::LeftButton, Keyboard::kControl, QPoint(5, 5));
    drag(t.goButton(), Qt::LeftButton, QPoint(5, 5), 500);
    drag(t.goButton(), Qt::LeftButton, QPoint(5, 5), 600);
    QVERIFY(window.findChildren<QDrag *>().isEmpty());
}

void tst_LinkDrag::aPressIsForgottenWhenASheetComesUp()
{
    TimerFixture t;
    WufferWindow &window = *t.timer.window();
    window.show();
    QTest::mousePress(&window, Qt::LeftButton, Keyboard::kControl, QPoint(4, 60));
    t.timer.targetTime();
    t.timer.endTargetTimeSheet();
    drag(window, Qt::LeftButton, QPoint(4, 60), far());
    QVERIFY(window.findChildren<QDrag *>().isEmpty());
}

void tst_LinkDrag::aDragBeginsOnWhatIsDisabled_data()
{
    QTest::addColumn<QString>("control");
    QTest::addColumn<Qt::MouseButton>("button");
    for (const char *control : {"_goButton", "_keepWuffingBox", "_hoursField", "_finishedCombo"}) {
        QTest::addRow("%s, left", control) << QString::fromLatin1(control) << Qt::LeftButton;
        QTest::addRow("%s, right", control) << QString::fromLatin1(control) << Qt::RightButton;
    }
}

void tst_LinkDrag::aDragBeginsOnWhatIsDisabled()
{
    QFETCH(const QString, control);
    QFETCH(const Qt::MouseButton, button);
    const TimerFixture t;
    WufferWindow &window = *t.timer.window();
    window.show();
    auto &widget = t.part<QWidget>(qPrintable(control));
    widget.setEnabled(false);
    QTest::mousePress(&widget, button, Keyboard::kControl, QPoint(5, 5));
    QTest::ignoreMessage(QtWarningMsg, "Unimplemented code.");
    drag(widget, button, QPoint(5, 5), far());
    QCOMPARE(window.findChildren<QDrag *>().size(), 1);
}

void tst_LinkDrag::aPressOnWhatIsEnabledIsNoDrag()
{
    const TimerFixture t;
    WufferWindow &window = *t.timer.window();
    window.show();
    for (const char *control : {"_goButton", "_keepWuffingBox", "_hoursField"}) {
        auto &widget = t.part<QWidget>(control);
        QTest::mousePress(&widget, Qt::LeftButton, Keyboard::kControl, QPoint(5, 5));
        drag(widget, Qt::LeftButton, QPoint(5, 5), far());
        QVERIFY(window.findChildren<QDrag *>().isEmpty());
    }
}

WUFFER_TEST(tst_LinkDrag)
#include "tst_LinkDrag.moc"
