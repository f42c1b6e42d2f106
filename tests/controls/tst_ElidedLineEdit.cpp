#include "controls/ElidedLineEdit.h"
#include "support/PaintedLabel.h"
#include "support/TestMain.h"

namespace
{
QImage imageOf(QWidget &widget)
{
    return widget.grab().toImage().convertToFormat(QImage::Format_RGB32);
}

/// A window with a field for a name and another field.
struct Fixture
{
    explicit Fixture(const QString &text)
    {
        for (QLineEdit *each : {static_cast<QLineEdit *>(name), other})
            each->setFixedSize(120, 30);
        name->setFrame(false);
        name->setAlignment(Qt::AlignCenter);
        name->setText(text);
        other->move(0, 40);
        window.show();
        window.activateWindow();
        other->setFocus();
        QCoreApplication::processEvents();
    }

    [[nodiscard]] QImage painted() const { return imageOf(*name); }

    QWidget window;
    ElidedLineEdit *name = new ElidedLineEdit(&window);
    QLineEdit *other = new QLineEdit(&window);
};

/// How an ordinary field without the focus shows this text.
QImage ordinary(const QString &text)
{
    QLineEdit field(text);
    field.setFixedSize(120, 30);
    field.setFrame(false);
    field.setAlignment(Qt::AlignCenter);
    return imageOf(field);
}

const QString kLong = QStringLiteral("Bread & butter in the small oven");
} // namespace

class tst_ElidedLineEdit final : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void aTextWithRoomIsShownAsEver();
    void aLongTextIsElidedAtItsEnd();
    void aLongTextIsWholeWhileItIsEdited();
    void theTextKeepsItsColour();
};

void tst_ElidedLineEdit::aTextWithRoomIsShownAsEver()
{
    const Fixture f(QStringLiteral("Tea"));
    QCOMPARE(f.painted(), ordinary(QStringLiteral("Tea")));
}

void tst_ElidedLineEdit::aLongTextIsElidedAtItsEnd()
{
    const Fixture f(kLong);
    const QImage elided = f.painted();
    QVERIFY(elided != ordinary(kLong));
    const QString shown = f.name->fontMetrics().elidedText(kLong, Qt::ElideRight, 116);
    QVERIFY(shown.startsWith(QStringLiteral("Bread & b")));
    const QRect ink = inkOf(elided);
    const QRect expected = inkOf(ordinary(shown));
    QVERIFY(expected.width() > 90);
    QVERIFY((ink.topLeft() - expected.topLeft()).manhattanLength() <= 1);
    QVERIFY((ink.bottomRight() - expected.bottomRight()).manhattanLength() <= 1);
    QCOMPARE(f.name->text(), kLong);
}

void tst_ElidedLineEdit::aLongTextIsWholeWhileItIsEdited()
{
    const Fixture f(kLong);
    const QImage elided = f.painted();

    f.name->setFocus();
    f.name->end(false);
    QVERIFY(f.painted() != elided);
    f.other->setFocus();

    QCOMPARE(f.painted(), elided);
}

void tst_ElidedLineEdit::theTextKeepsItsColour()
{
    const Fixture f(QString(40, QChar(0x2588)));
    QPalette palette;
    palette.setColor(QPalette::Text, Qt::red);
    f.name->setPalette(palette);
    QCOMPARE(f.painted().pixelColor(40, 15), QColor(Qt::red));
}

WUFFER_TEST(tst_ElidedLineEdit)
#include "tst_ElidedLineEdit.moc"
