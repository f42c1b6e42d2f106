#include "controls/ElidedLabel.h"
#include "support/TestMain.h"

namespace
{
QImage painted(ElidedLabel &label, int width)
{
    label.resize(width, 30);
    QImage image(label.size(), QImage::Format_RGB32);
    label.render(&image);
    return image;
}
} // namespace

class tst_ElidedLabel final : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void noTextMakesItsWindowWider();
    void aTextWithRoomIsShownWhole();
    void aTextWithoutRoomIsShortened();
    void tagsAreLetters();
};

void tst_ElidedLabel::noTextMakesItsWindowWider()
{
    ElidedLabel label;
    label.setText(QString(500, QLatin1Char('w')));
    QCOMPARE(label.minimumSizeHint().width(), 0);
    QCOMPARE(label.sizeHint().width(), 0);
    QVERIFY(label.minimumSizeHint().height() >= label.fontMetrics().height());
    QCOMPARE(label.text().size(), 500);
}

void tst_ElidedLabel::aTextWithRoomIsShownWhole()
{
    ElidedLabel label;
    label.setText(QStringLiteral("Bell"));
    QLabel plain(QStringLiteral("Bell"));
    plain.resize(200, 30);
    QImage expected(plain.size(), QImage::Format_RGB32);
    plain.render(&expected);
    QCOMPARE(painted(label, 200), expected);
}

void tst_ElidedLabel::aTextWithoutRoomIsShortened()
{
    ElidedLabel label;
    label.setText(QStringLiteral("A very long name of a sound, as some have"));
    const QImage shortened = painted(label, 100);
    label.setText(label.fontMetrics().elidedText(label.text(), Qt::ElideMiddle, 100));
    QVERIFY(label.text().contains(QChar(0x2026)));
    QCOMPARE(painted(label, 100), shortened);
}

void tst_ElidedLabel::tagsAreLetters()
{
    ElidedLabel label;
    label.setText(QStringLiteral("<b></b>"));
    const QImage tags = painted(label, 200);
    label.setText(QString());
    QVERIFY(painted(label, 200) != tags);
}

WUFFER_TEST(tst_ElidedLabel)
#include "tst_ElidedLabel.moc"
