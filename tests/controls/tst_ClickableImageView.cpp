#include "controls/ClickableImageView.h"
#include "support/NoticeCounter.h"
#include "support/TestMain.h"

#include <QLineEdit>
#include <QMouseEvent>

namespace
{
const QString kClicked = QStringLiteral("ClickableImageViewClicked");

/// A view in a parent that counts the mouse presses that reach it.
struct Fixture : QWidget
{
    Fixture()
    {
        view.setGeometry(0, 0, 32, 32);
        resize(100, 100);
        show();
    }

    ClickableImageView view{this};
    NoticeCounter clicks{kClicked};
    int presses = 0;

protected:
    void mousePressEvent(QMouseEvent *) override { ++presses; }
};
} // namespace

class tst_ClickableImageView final : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void everyLeftPressIsAnnouncedOnce();
    void thePressIsAnnouncedAndNotTheRelease();
    void bothPressesOfADoubleClickAreAnnounced();
    void theNoticeNamesTheViewThatWasClicked();
    void otherButtonsAreNotAnnounced();
    void thePressIsPassedOn();
    void theSpaceBarClicksOnce();
    void otherKeysDoNotClick();
    void aDisabledViewSaysNothing();
    void theTabKeyReachesTheView();
    void theFocusIsSeen();
    void theViewShowsTheImageOfItsName();
};

void tst_ClickableImageView::everyLeftPressIsAnnouncedOnce()
{
    Fixture f;
    for (int count = 1; count <= 3; ++count) {
        QTest::mouseClick(&f.view, Qt::LeftButton);
        QCOMPARE(f.clicks.count, count);
    }
}

void tst_ClickableImageView::thePressIsAnnouncedAndNotTheRelease()
{
    Fixture f;
    QTest::mousePress(&f.view, Qt::LeftButton);
    QCOMPARE(f.clicks.count, 1);
    QTest::mouseRelease(&f.view, Qt::LeftButton);
    QCOMPARE(f.clicks.count, 1);
}

void tst_ClickableImageView::bothPressesOfADoubleClickAreAnnounced()
{
    Fixture f;

    QTest::mouseClick(&f.view, Qt::LeftButton);
    QTest::mouseDClick(&f.view, Qt::LeftButton);

    QCOMPARE(f.clicks.count, 2);
}

void tst_ClickableImageView::theNoticeNamesTheViewThatWasClicked()
{
    Fixture f;
    const ClickableImageView other;

    QTest::mouseClick(&f.view, Qt::LeftButton);

    QCOMPARE(f.clicks.lastObject, &f.view);
}

void tst_ClickableImageView::otherButtonsAreNotAnnounced()
{
    Fixture f;

    QTest::mouseClick(&f.view, Qt::RightButton);
    QTest::mouseClick(&f.view, Qt::MiddleButton);

    QCOMPARE(f.clicks.count, 0);
    QCOMPARE(f.presses, 2);
}

void tst_ClickableImageView::thePressIsPassedOn()
{
    Fixture f;

    QTest::mousePress(&f.view, Qt::LeftButton);

    QCOMPARE(f.presses, 1);
}

void tst_ClickableImageView::theSpaceBarClicksOnce()
{
    Fixture f;
    QTest::keyClick(&f.view, Qt::Key_Space);
    QCOMPARE(f.clicks.count, 1);

    // A key that is held down does not click again.
    QKeyEvent repeat(QEvent::KeyPress, Qt::Key_Space, {}, QStringLiteral(" "), true);
    QCoreApplication::sendEvent(&f.view, &repeat);
    QCOMPARE(f.clicks.count, 1);
    QCOMPARE(f.clicks.lastObject, &f.view);
}

void tst_ClickableImageView::otherKeysDoNotClick()
{
    Fixture f;

    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_A, Qt::Key_Escape})
        QTest::keyClick(&f.view, key);

    QCOMPARE(f.clicks.count, 0);
}

void tst_ClickableImageView::aDisabledViewSaysNothing()
{
    Fixture f;
    f.view.setEnabled(false);

    QTest::mouseClick(&f.view, Qt::LeftButton);
    QTest::keyClick(&f.view, Qt::Key_Space);

    QCOMPARE(f.clicks.count, 0);
}

void tst_ClickableImageView::theTabKeyReachesTheView()
{
    Fixture f;
    QLineEdit other(&f);
    other.show();
    other.setFocus();
    QVERIFY(QTest::qWaitForWindowActive(&f));
    QVERIFY(!f.view.hasFocus());

    QTest::keyClick(&f, Qt::Key_Tab);

    QVERIFY(f.view.hasFocus());
}

void tst_ClickableImageView::theViewShowsTheImageOfItsName()
{
    ClickableImageView view;
    QCOMPARE(view.imageName(), QString());

    view.setImage(QStringLiteral("sound_high.png"));

    QCOMPARE(view.imageName(), QStringLiteral("sound_high.png"));
    QVERIFY(!view.pixmap().isNull());
}

void tst_ClickableImageView::theFocusIsSeen()
{
    Fixture f;
    QLineEdit other(&f);
    other.show();
    other.setFocus();
    QVERIFY(QTest::qWaitForWindowActive(&f));
    const QImage without = f.view.grab().toImage();

    QTest::keyClick(&f, Qt::Key_Tab);

    QVERIFY(f.view.hasFocus());
    QVERIFY(f.view.grab().toImage() != without);
}

WUFFER_TEST(tst_ClickableImageView)
#include "tst_ClickableImageView.moc"
