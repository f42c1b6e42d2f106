#include "platform/StatusIcon.h"
#include "platform/StatusItem.h"
#include "support/TestMain.h"

#include <QPalette>

namespace
{
QPalette light()
{
    return {QColor(0x10, 0x10, 0x10),
            Qt::gray,
            Qt::white,
            Qt::black,
            Qt::gray,
            QColor(0x10, 0x10, 0x10),
            Qt::white,
            Qt::white,
            QColor(0xef, 0xef, 0xef)};
}

QPalette dark()
{
    return {QColor(0xee, 0xee, 0xee),
            Qt::gray,
            Qt::white,
            Qt::black,
            Qt::gray,
            QColor(0xee, 0xee, 0xee),
            Qt::white,
            Qt::black,
            QColor(0x2b, 0x2b, 0x2b)};
}

QIcon image()
{
    QPixmap pixmap(48, 48);
    pixmap.fill(Qt::green);
    return pixmap;
}

StatusIcon iconFor(const char *title, const QColor &color, const QPalette &palette = light())
{
    return StatusIcon::of(image(), {QString::fromUtf8(title), color}, palette);
}

/// The number of pixels of this colour.
int count(const QImage &picture, const QColor &color)
{
    int found = 0;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x)
            found += picture.pixelColor(x, y) == color ? 1 : 0;
    }
    return found;
}

const QColor kRed(230, 0, 0);
} // namespace

/// The icon that the panel shows.
class tst_StatusIcon final : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void theLargestUnitOfATimeIsWritten_data();
    void theLargestUnitOfATimeIsWritten();
    void blackIsTheTextOfThePaletteOnItsBackground();
    void anotherColorStaysOnABackgroundThatItStandsOutFrom();
    void withoutATimeTheImageShows();
    void theLastMomentsShowTheImageOnTheirColor();
    void withoutAnImageAndATitleTheIconIsNull();
    void everySizeIsFilledByTheText_data();
    void everySizeIsFilledByTheText();
    void equalIconsAreEqual();
};

void tst_StatusIcon::theLargestUnitOfATimeIsWritten_data()
{
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("text");
    const auto row = [](const char *title, const char *text) {
        QTest::newRow(title) << QString::fromUtf8(title) << QString::fromUtf8(text);
    };
    row("59s ", "59s");
    row("5m 0s ", "5m");
    row("1h 2m 3s ", "1h");
    row("11d 3h  ", "11d");
    row("999d 3h  ", "999d");
    row("24855d  ", "");
    row("0s", "0s");
    row("-5s ", "");
    row("Wuff! ", "");
    row("Wuffer ", "");
    row("", "");
    row(" ", "");
    row("5 minutes ", "");
    row("12", "");
    row("5min ", "");
    row("٣s ", "");
}

void tst_StatusIcon::theLargestUnitOfATimeIsWritten()
{
    QFETCH(const QString, title);
    QTEST(StatusIcon::shortText(title), "text");
}

void tst_StatusIcon::blackIsTheTextOfThePaletteOnItsBackground()
{
    for (const QPalette &palette : {light(), dark()}) {
        const StatusIcon icon = iconFor("5m 3s ", Qt::black, palette);
        QCOMPARE(icon.ink, palette.color(QPalette::WindowText));
        QCOMPARE(icon.plate, palette.color(QPalette::Window));
    }
}

void tst_StatusIcon::anotherColorStaysOnABackgroundThatItStandsOutFrom()
{
    for (const QPalette &palette : {light(), dark()}) {
        QCOMPARE(iconFor("5s ", kRed, palette).ink, kRed);
        QCOMPARE(iconFor("5s ", kRed, palette).plate, QColor(Qt::white));
        QCOMPARE(iconFor("5s ", Qt::yellow, palette).plate, QColor(0x20, 0x20, 0x20));
    }
}

void tst_StatusIcon::withoutATimeTheImageShows()
{
    const QImage picture = iconFor("Wuffer ", Qt::black).painted(22);
    QCOMPARE(count(picture, Qt::green), 22 * 22);
}

void tst_StatusIcon::theLastMomentsShowTheImageOnTheirColor()
{
    const QImage picture = iconFor("Wuff! ", kRed).painted(48);
    QVERIFY(count(picture, Qt::green) > 48 * 48 / 2);
    QCOMPARE(picture.pixelColor(24, 1), kRed);
    QCOMPARE(picture.pixelColor(0, 0).alpha(), 0);
}

void tst_StatusIcon::withoutAnImageAndATitleTheIconIsNull()
{
    QVERIFY(StatusIcon::of({}, {}, light()).isNull());
    QVERIFY(!iconFor("", Qt::black).isNull());
    QVERIFY(!StatusIcon::of({}, {QStringLiteral("5s "), Qt::black}, light()).isNull());
}

void tst_StatusIcon::everySizeIsFilledByTheText_data()
{
    QTest::addColumn<int>("size");
    QTest::addColumn<QString>("title");
    for (const int size : {16, 22, 24, 32, 44, 48}) {
        for (const char *title : {"5m", "59s", "999d"})
            QTest::addRow("%s in %d", title, size) << size << QString::fromLatin1(title);
    }
}

/// The size of the rectangle around the text, in pixels.
static QSize reach(const QImage &picture, const QColor &plate)
{
    QRect reached;
    for (int y = picture.height() / 6; y < picture.height() * 5 / 6; ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            const QColor pixel = picture.pixelColor(x, y);
            if (pixel.alpha() == 255 && pixel != plate)
                reached |= QRect(x, y, 1, 1);
        }
    }
    return reached.size();
}

void tst_StatusIcon::everySizeIsFilledByTheText()
{
    QFETCH(const int, size);
    QFETCH(const QString, title);
    const StatusIcon icon = StatusIcon::of(image(), {title, Qt::black}, light());
    const QImage picture = icon.painted(size);
    QCOMPARE(picture.size(), QSize(size, size));
    QVERIFY(count(picture, icon.ink) > 0);
    QVERIFY(count(picture, icon.plate) > 0);
    const QSize text = reach(picture, icon.plate);
    QVERIFY2(text.width() >= size * 3 / 4, qPrintable(QString::number(text.width())));
    QVERIFY2(text.height() >= size * 2 / 5, qPrintable(QString::number(text.height())));
}

void tst_StatusIcon::equalIconsAreEqual()
{
    const QIcon one = image();
    const auto icon = [&](const char *title, const QColor &color) {
        return StatusIcon::of(one, {QString::fromLatin1(title), color}, light());
    };
    QVERIFY(icon("5m 3s ", Qt::black) == icon("5m 2s ", Qt::black));
    QVERIFY(icon("5m 3s ", Qt::black) != icon("4m 59s ", Qt::black));
    QVERIFY(icon("5s ", Qt::black) != icon("5s ", kRed));
    QVERIFY(icon("5s ", Qt::black) !=
            StatusIcon::of({}, {QStringLiteral("5s "), Qt::black}, light()));
}

WUFFER_TEST(tst_StatusIcon)
#include "tst_StatusIcon.moc"
