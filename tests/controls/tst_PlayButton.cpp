#include "controls/PlayButton.h"
#include "support/TestMain.h"

namespace
{
QImage painted(PlayButton &button)
{
    button.resize(40, 40);
    QImage image(button.size(), QImage::Format_RGB32);
    button.render(&image);
    return image;
}
} // namespace

class tst_PlayButton final : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void itOffersToPlayAndThenToStop();
    void itsAccessibleNameFollowsChangedTexts();
    void theSignChangesWhileItPlays();
    void theSignIsDrawnInTheColourOfTheText();
    void itIsSquareAndGrowsWithTheFont();
    void theTabKeyReachesIt();
};

void tst_PlayButton::itOffersToPlayAndThenToStop()
{
    PlayButton button;
    button.setPlayText(QStringLiteral("Play it"));
    button.setStopText(QStringLiteral("Stop it"));
    QVERIFY(!button.isPlaying());
    QCOMPARE(button.accessibleName(), QStringLiteral("Play it"));
    QCOMPARE(button.toolTip(), QStringLiteral("Play it"));
    button.setPlaying(true);
    QVERIFY(button.isPlaying());
    QCOMPARE(button.accessibleName(), QStringLiteral("Stop it"));
    QCOMPARE(button.toolTip(), QStringLiteral("Stop it"));
    button.setPlaying(false);
    QCOMPARE(button.accessibleName(), QStringLiteral("Play it"));
}

void tst_PlayButton::itsAccessibleNameFollowsChangedTexts()
{
    PlayButton button;
    button.setPlaying(true);
    button.setProperty("stopText", QStringLiteral("Be quiet"));
    QCOMPARE(button.accessibleName(), QStringLiteral("Be quiet"));
}

void tst_PlayButton::theSignChangesWhileItPlays()
{
    PlayButton button;
    const QImage triangle = painted(button);
    button.setPlaying(true);
    const QImage square = painted(button);
    QVERIFY(triangle != square);
    button.setPlaying(false);
    QCOMPARE(painted(button), triangle);
}

void tst_PlayButton::theSignIsDrawnInTheColourOfTheText()
{
    PlayButton button;
    QPalette palette = button.palette();
    palette.setColor(QPalette::ButtonText, Qt::magenta);
    button.setPalette(palette);
    for (const bool playing : {false, true}) {
        button.setPlaying(playing);
        QCOMPARE(painted(button).pixelColor(20, 20), QColor(Qt::magenta));
    }
}

void tst_PlayButton::itIsSquareAndGrowsWithTheFont()
{
    PlayButton button;
    const QSize small = button.sizeHint();
    QCOMPARE(small.width(), small.height());
    QFont font = button.font();
    font.setPointSize(3 * font.pointSize());
    button.setFont(font);
    QVERIFY(button.sizeHint().height() > 2 * small.height() - 10);
}

void tst_PlayButton::theTabKeyReachesIt()
{
    const PlayButton button;
    QVERIFY(button.focusPolicy() & Qt::TabFocus);
}

WUFFER_TEST(tst_PlayButton)
#include "tst_PlayButton.moc"
