#include "support/TestMain.h"
#include "tools/MeasurementsPanel.h"

#include <QAccessible>
#include <QClipboard>
#include <QPushButton>
#include <QRegularExpression>
#include <QScrollBar>
#include <QTextTable>

#include <cmath>

namespace
{
using Row = QStringList;
using Units = QHash<QString, double>;

constexpr double kUsGallon = 231 * 2.54 * 2.54 * 2.54; // milliliters in 231 cubic inches
constexpr double kUkGallon = 4546.09;
constexpr double kPound = 453.59237; // grams

/// Milliliters by the names and abbreviations of US units.
const Units &volumes()
{
    static const Units units{
        {QStringLiteral("teaspoon"), kUsGallon / 768},
        {QStringLiteral("tsp"), kUsGallon / 768},
        {QStringLiteral("tablespoon"), kUsGallon / 256},
        {QStringLiteral("tbsp"), kUsGallon / 256},
        {QStringLiteral("fluid ounce"), kUsGallon / 128},
        {QStringLiteral("fl oz"), kUsGallon / 128},
        {QStringLiteral("cup"), kUsGallon / 16},
        {QStringLiteral("pint"), kUsGallon / 8},
        {QStringLiteral("quart"), kUsGallon / 4},
        {QStringLiteral("gallon"), kUsGallon},
        {QStringLiteral("metric teaspoon"), 5},
        {QStringLiteral("metric tablespoon"), 15},
        {QStringLiteral("Australian tablespoon"), 20},
        {QStringLiteral("Japanese cup"), 200},
        {QStringLiteral("metric cup"), 250},
        {QStringLiteral("liter"), 1000},
        {QStringLiteral("UK fluid ounce"), kUkGallon / 160},
        {QStringLiteral("UK pint"), kUkGallon / 8},
        {QStringLiteral("UK quart"), kUkGallon / 4},
        {QStringLiteral("UK gallon"), kUkGallon},
        {QStringLiteral("mL"), 1},
    };
    return units;
}

/// Grams. A stick of butter is a quarter of a pound and has 8 tablespoons, so half a cup.
const Units &weights()
{
    static const Units units{
        {QStringLiteral("ounce"), kPound / 16},
        {QStringLiteral("oz"), kPound / 16},
        {QStringLiteral("pound"), kPound},
        {QStringLiteral("lb"), kPound},
        {QStringLiteral("gram"), 1},
        {QStringLiteral("g"), 1},
        {QStringLiteral("kilogram"), 1000},
        {QStringLiteral("stick"), kPound / 4},
        {QStringLiteral("tbsp"), kPound / 32},
        {QStringLiteral("cup"), kPound / 2},
    };
    return units;
}

double fractionOf(const QString &text)
{
    static const QHash<QString, double> fractions{
        {QStringLiteral("¼"), 1 / 4.0}, {QStringLiteral("½"), 1 / 2.0},
        {QStringLiteral("¾"), 3 / 4.0}, {QStringLiteral("⅓"), 1 / 3.0},
        {QStringLiteral("⅔"), 2 / 3.0}, {QStringLiteral("⅙"), 1 / 6.0},
        {QStringLiteral("⅛"), 1 / 8.0}, {QStringLiteral("1⁄16"), 1 / 16.0},
    };
    return fractions.value(text);
}

/// A figure as printed: "5⅓ tbsp", "28.35 g", "¼ cup".
struct Figure
{
    explicit Figure(const QString &cell)
    {
        static const QRegularExpression form(
            QStringLiteral("^(?:(1⁄16)|(\\d*)(?:\\.(\\d+))?([¼½¾⅓⅔⅙⅛])?) (\\D+)$"));
        const QRegularExpressionMatch match = form.match(cell);
        isValid = match.hasMatch();
        decimals = static_cast<int>(match.captured(3).size());
        value = (match.captured(2) + QLatin1Char('.') + match.captured(3)).toDouble() +
                fractionOf(match.captured(1)) + fractionOf(match.captured(4));
        unit = match.captured(5);
        if (unit.size() > 2 && unit.endsWith(QLatin1Char('s')))
            unit.chop(1);
    }

    /// Whether the printed value is this one, rounded to the printed decimals. Without decimals it
    /// must be exact.
    [[nodiscard]] bool rounds(double exact) const
    {
        const double step = decimals == 0 ? 0 : std::pow(10.0, -decimals);
        return std::abs(value - exact) <= step / 2 + 1e-9;
    }

    bool isValid;
    double value;
    int decimals;
    QString unit;
};

struct Fixture
{
    /// The rows of the table under this title, without its header.
    [[nodiscard]] QList<Row> rows(const char *title) const
    {
        for (const QTextFrame *frame : panel.document()->rootFrame()->childFrames()) {
            // One position between the end of the title and the first cell is the start of the
            // table.
            const int endOfTitle = frame->firstPosition() - 2;
            if (panel.document()->findBlock(endOfTitle).text() == QLatin1String(title))
                return rowsOf(dynamic_cast<const QTextTable &>(*frame)).mid(1);
        }
        return {};
    }

    MeasurementsPanel panel;

private:
    [[nodiscard]] static QList<Row> rowsOf(const QTextTable &table)
    {
        QList<Row> rows(table.rows());
        for (int row = 0; row < table.rows(); ++row) {
            for (int column = 0; column < table.columns(); ++column)
                rows[row].append(textOf(table.cellAt(row, column)));
        }
        return rows;
    }

    [[nodiscard]] static QString textOf(const QTextTableCell &cell)
    {
        QTextCursor cursor = cell.firstCursorPosition();
        cursor.setPosition(cell.lastPosition(), QTextCursor::KeepAnchor);
        return cursor.selectedText();
    }
};
} // namespace

class tst_Measurements final : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void everyFigureOfAMeasureIsRight_data();
    void everyFigureOfAMeasureIsRight();
    void theOvenTemperaturesAreRight();
    void theFactorsAreRight();
    void theTemperatureRulesAreRight();
    void figuresHaveTheUsersDecimalPoint();
    void theTextCanBeSelectedAndCopied();
    void aScreenReaderFindsItsNameAndItsText();
    void theKeyboardScrollsItAndLeavesIt();
    void itFollowsADarkPalette();
};

void tst_Measurements::everyFigureOfAMeasureIsRight_data()
{
    QTest::addColumn<QByteArray>("title");
    QTest::addColumn<Units>("units");
    QTest::addColumn<int>("figures");
    QTest::newRow("volume") << QByteArray("Volume, US measures") << volumes() << 48;
    QTest::newRow("other volumes") << QByteArray("Volume, other measures") << volumes() << 20;
    QTest::newRow("weight") << QByteArray("Weight") << weights() << 36;
    QTest::newRow("butter") << QByteArray("Butter, US sticks") << weights() << 24;
}

void tst_Measurements::everyFigureOfAMeasureIsRight()
{
    QFETCH(const QByteArray, title);
    QFETCH(const Units, units);
    const Fixture f;
    int figures = 0;
    for (const Row &row : f.rows(title.constData())) {
        const Figure measure(row.first());
        QVERIFY2(measure.isValid && units.contains(measure.unit), qPrintable(row.first()));
        for (const QString &cell : row.mid(1)) {
            const Figure figure(cell);
            QVERIFY2(figure.isValid && units.contains(figure.unit), qPrintable(cell));
            const double exact =
                measure.value * units.value(measure.unit) / units.value(figure.unit);
            QVERIFY2(figure.rounds(exact), qPrintable(row.join(QLatin1String(" | "))));
            ++figures;
        }
    }
    QTEST(figures, "figures");
}

void tst_Measurements::theOvenTemperaturesAreRight()
{
    const Fixture f;
    QList<double> marks;
    for (const Row &row : f.rows("Oven temperatures")) {
        QVERIFY(row.at(1).startsWith(QLatin1String("Gas ")));
        const double mark = Figure(row.at(1).mid(4) + QLatin1String(" x")).value;
        // Below mark 1 are the marks ½ and ¼, each one step of 25 degrees lower.
        const double fahrenheit = mark < 1 ? 200 + 100 * mark : 250 + 25 * mark;
        const double celsius = (fahrenheit - 32) / 1.8;
        QCOMPARE(row.at(2), QStringLiteral("%1 °F").arg(fahrenheit));
        QCOMPARE(row.at(3), QStringLiteral("%1 °C").arg(std::round(celsius)));
        QCOMPARE(row.at(4), QStringLiteral("%1 °C").arg(std::round(celsius / 10 + 1e-9) * 10));
        marks.append(mark);
    }
    QCOMPARE(marks, QList<double>({0.25, 0.5, 1, 2, 3, 4, 5, 6, 7, 8, 9}));
}

void tst_Measurements::theFactorsAreRight()
{
    const double teaspoon = kUsGallon / 768;
    const double ounce = kPound / 16;
    const QHash<QString, double> factors{
        {QStringLiteral("Teaspoons to milliliters"), teaspoon},
        {QStringLiteral("Tablespoons to milliliters"), 3 * teaspoon},
        {QStringLiteral("Fluid ounces to milliliters"), 6 * teaspoon},
        {QStringLiteral("Cups to milliliters"), 48 * teaspoon},
        {QStringLiteral("Milliliters to fluid ounces"), 1 / (6 * teaspoon)},
        {QStringLiteral("Quarts to liters"), kUsGallon / 4000},
        {QStringLiteral("Liters to quarts"), 4000 / kUsGallon},
        {QStringLiteral("Ounces to grams"), ounce},
        {QStringLiteral("Grams to ounces"), 1 / ounce},
        {QStringLiteral("Pounds to kilograms"), kPound / 1000},
        {QStringLiteral("Kilograms to pounds"), 1000 / kPound},
        {QStringLiteral("Inches to centimeters"), 2.54},
        {QStringLiteral("Centimeters to inches"), 1 / 2.54},
    };
    const Fixture f;
    const QList<Row> rows = f.rows("Common conversions");
    QCOMPARE(rows.size(), factors.size() + 2);
    for (const Row &row : rows) {
        if (factors.contains(row.at(0)))
            QCOMPARE(row.at(1), QStringLiteral("× %1").arg(factors.value(row.at(0)), 0, 'g', 4));
    }
}

void tst_Measurements::theTemperatureRulesAreRight()
{
    const Fixture f;
    const QList<Row> rows = f.rows("Common conversions").mid(13);
    QCOMPARE(rows.size(), 2);
    // 9 ÷ 5 is 1.8.
    QCOMPARE(rows.at(0),
             Row({QStringLiteral("Celsius to Fahrenheit"), QStringLiteral("× 1.8, then + 32")}));
    QCOMPARE(rows.at(1),
             Row({QStringLiteral("Fahrenheit to Celsius"), QStringLiteral("− 32, then ÷ 1.8")}));
}

void tst_Measurements::figuresHaveTheUsersDecimalPoint()
{
    QLocale::setDefault(QLocale(QStringLiteral("de_DE")));
    const MeasurementsPanel panel;
    QLocale::setDefault(QLocale::system());
    QVERIFY(panel.toPlainText().contains(QLatin1String("4,93 mL")));
    QVERIFY(!panel.toPlainText().contains(QRegularExpression(QStringLiteral("\\d\\.\\d"))));
}

void tst_Measurements::theTextCanBeSelectedAndCopied()
{
    Fixture f;
    QTest::keyClick(&f.panel, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(&f.panel, Qt::Key_C, Qt::ControlModifier);
    const QString copied = QGuiApplication::clipboard()->text();
    QVERIFY(copied.contains(QLatin1String("Oven temperatures")));
    QVERIFY(copied.contains(QLatin1String("236.59 mL")));
    QTest::keyClick(&f.panel, Qt::Key_X);
    QVERIFY(f.panel.toPlainText().contains(QLatin1String("236.59 mL")));
}

void tst_Measurements::aScreenReaderFindsItsNameAndItsText()
{
    Fixture f;
    QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(&f.panel);
    QVERIFY(accessible);
    QCOMPARE(accessible->text(QAccessible::Name), QStringLiteral("Kitchen measurements"));
    QVERIFY(accessible->state().readOnly);
    QAccessibleTextInterface *text = accessible->textInterface();
    QVERIFY(text);
    const QString all = text->text(0, text->characterCount());
    QVERIFY(all.contains(QLatin1String("1 teaspoon")) && all.contains(QLatin1String("Gas 9")));
}

void tst_Measurements::theKeyboardScrollsItAndLeavesIt()
{
    QWidget window;
    MeasurementsPanel panel(&window);
    const QPushButton other(&window);
    window.resize(400, 300);
    panel.resize(400, 200);
    window.show();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    panel.setFocus();
    QTest::keyClick(&panel, Qt::Key_PageDown);
    QVERIFY(panel.verticalScrollBar()->value() > 0);
    QTest::keyClick(&panel, Qt::Key_End, Qt::ControlModifier);
    // The last line must be visible; the margin below it need not be.
    const auto margin = static_cast<int>(panel.document()->documentMargin());
    QVERIFY(panel.verticalScrollBar()->value() >= panel.verticalScrollBar()->maximum() - margin);
    QTest::keyClick(&panel, Qt::Key_Tab);
    QVERIFY(other.hasFocus());
}

void tst_Measurements::itFollowsADarkPalette()
{
    Fixture f;
    f.panel.resize(600, 400);
    QPalette dark = f.panel.palette();
    dark.setColor(QPalette::Base, QColor(20, 20, 20));
    dark.setColor(QPalette::Text, QColor(240, 240, 240));
    f.panel.setPalette(dark);
    const QImage picture = f.panel.viewport()->grab().toImage();
    QCOMPARE(picture.pixelColor(2, 2), QColor(20, 20, 20));
    int light = 0;
    for (int x = 0; x < picture.width(); ++x) {
        for (int y = 0; y < picture.height(); ++y)
            light += picture.pixelColor(x, y).lightness() > 200 ? 1 : 0;
    }
    QVERIFY(light > 500);
}

WUFFER_TEST(tst_Measurements)
#include "tst_Measurements.moc"
