#include "app/ProgramStyle.h"
#include "base/Contrast.h"
#include "support/TestMain.h"
#include "support/Themes.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDateTimeEdit>
#include <QImage>
#include <QLineEdit>
#include <QPushButton>
#include <QStyleFactory>
#include <QStyleOptionButton>
#include <QVBoxLayout>

#include <algorithm>
#include <initializer_list>
#include <memory>

namespace
{
/// A window with a control of each kind.
struct Controls : QWidget
{
    explicit Controls(QStyle &style)
    {
        for (QWidget *control :
             std::initializer_list<QWidget *>{&box, &field, &button, &combo, &date}) {
            control->setStyle(&style);
            layout.addWidget(control);
        }
        combo.addItem(QStringLiteral("Tea"));
        date.setDateTime(QDate(2026, 1, 1).startOfDay());
    }

    QVBoxLayout layout{this};
    QCheckBox box{QStringLiteral("Tea")};
    QLineEdit field{QStringLiteral("Tea")};
    QPushButton button{QStringLiteral("Tea")};
    QComboBox combo;
    QDateTimeEdit date;
};

QImage pictureOf(QWidget &widget)
{
    return widget.grab().toImage().convertToFormat(QImage::Format_RGB32);
}

/// The greatest contrast to the colour on the first points of the middle row, where the outline is.
double outlineContrast(QWidget &control, const QColor &ground)
{
    constexpr int widest = 5;
    const QImage picture = pictureOf(control);
    double greatest = 1;
    for (int x = 0; x < widest; ++x) {
        const Rgb point = Rgb::of(picture.pixelColor(x, picture.height() / 2));
        greatest = std::max(greatest, Contrast::ratio(point, Rgb::of(ground)));
    }
    return greatest;
}
} // namespace

/// What the program's style draws otherwise than Fusion.
class tst_ProgramStyle final : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { QApplication::setPalette(_start); }
    void outlinesAreSeenInDarkThemesAndThoseOfHighContrast_data();
    void outlinesAreSeenInDarkThemesAndThoseOfHighContrast();
    void inALightThemeNothingChanges();
    void drawersMoveWhereTheDesktopSaysNothing();

private:
    QPalette _start = QApplication::palette();
};

void tst_ProgramStyle::outlinesAreSeenInDarkThemesAndThoseOfHighContrast_data()
{
    QTest::addColumn<int>("theme");
    for (std::size_t theme = 1; theme < kThemes.size(); ++theme)
        QTest::newRow(kThemes.at(theme).name) << int(theme);
}

void tst_ProgramStyle::outlinesAreSeenInDarkThemesAndThoseOfHighContrast()
{
    QFETCH(const int, theme);
    setTheme(kThemes.at(std::size_t(theme)));
    ProgramStyle style;
    Controls controls(style);
    controls.show();
    for (QWidget *control : controls.findChildren<QWidget *>(Qt::FindDirectChildrenOnly)) {
        for (const QPalette::ColorRole ground : {QPalette::Window, QPalette::Base}) {
            const double contrast = outlineContrast(*control, control->palette().color(ground));
            const QByteArray found =
                control->metaObject()->className() + QByteArray(" ") + QByteArray::number(contrast);
            QVERIFY2(contrast >= Contrast::kLargeText, found.constData());
        }
    }
}

void tst_ProgramStyle::inALightThemeNothingChanges()
{
    setTheme(kThemes[0]);
    ProgramStyle style;
    const std::unique_ptr<QStyle> fusion(QStyleFactory::create(QStringLiteral("fusion")));
    Controls ours(style);
    Controls plain(*fusion);
    QCOMPARE(pictureOf(ours), pictureOf(plain));
    setTheme(kThemes[2]);
    QVERIFY(pictureOf(ours) != pictureOf(plain));
}

void tst_ProgramStyle::drawersMoveWhereTheDesktopSaysNothing()
{
    const ProgramStyle style;
    QVERIFY(style.styleHint(QStyle::SH_Widget_Animation_Duration, nullptr, nullptr, nullptr) > 0);
}

WUFFER_TEST(tst_ProgramStyle)
#include "tst_ProgramStyle.moc"
