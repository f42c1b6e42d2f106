#include "base/Contrast.h"
#include "controls/LegibleWhenDisabled.h"
#include "support/TestMain.h"

#include <QLineEdit>
#include <QPushButton>

namespace
{
double contrast(const QColor &one, const QColor &other)
{
    return Contrast::ratio(Rgb::of(one), Rgb::of(other));
}

QPalette theme(bool dark)
{
    QPalette palette = dark ? QPalette(QColor(50, 50, 50), QColor(40, 40, 40))
                            : QPalette(QColor(239, 239, 239), QColor(239, 239, 239));
    // As themes draw them.
    const QColor faint = dark ? QColor(90, 90, 90) : QColor(190, 190, 190);
    palette.setColor(QPalette::Disabled, QPalette::Text, faint);
    palette.setColor(QPalette::Disabled, QPalette::ButtonText, faint);
    return palette;
}
} // namespace

class tst_LegibleWhenDisabled final : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void disabledTextsCanBeRead_data();
    void disabledTextsCanBeRead();
    void theyAreStillPalerThanEnabledOnes();
    void theyFollowTheTheme();
    void nothingElseChanges();
};

void tst_LegibleWhenDisabled::disabledTextsCanBeRead_data()
{
    QTest::addColumn<bool>("dark");
    QTest::newRow("light") << false;
    QTest::newRow("dark") << true;
}

void tst_LegibleWhenDisabled::disabledTextsCanBeRead()
{
    QFETCH(const bool, dark);
    QWidget window;
    window.setPalette(theme(dark));
    QLineEdit field(&window);
    const auto now = [&](QPalette::ColorRole text, QPalette::ColorRole ground) {
        const QPalette &palette = field.palette();
        return contrast(palette.color(QPalette::Disabled, text),
                        palette.color(QPalette::Disabled, ground));
    };
    QVERIFY(now(QPalette::Text, QPalette::Base) < Contrast::kText);
    new LegibleWhenDisabled(field);
    QVERIFY(now(QPalette::Text, QPalette::Base) >= Contrast::kText);
    QVERIFY(now(QPalette::ButtonText, QPalette::Button) >= Contrast::kText);
}

void tst_LegibleWhenDisabled::theyAreStillPalerThanEnabledOnes()
{
    QPushButton button;
    button.setPalette(theme(false));
    new LegibleWhenDisabled(button);
    const QPalette &palette = button.palette();
    const QColor ground = palette.color(QPalette::Button);
    QVERIFY(contrast(palette.color(QPalette::Disabled, QPalette::ButtonText), ground) <
            contrast(palette.color(QPalette::Active, QPalette::ButtonText), ground) / 2);
}

void tst_LegibleWhenDisabled::theyFollowTheTheme()
{
    QWidget window;
    window.setPalette(theme(false));
    QLineEdit field(&window);
    new LegibleWhenDisabled(field);
    const QColor onLight = field.palette().color(QPalette::Disabled, QPalette::Text);
    window.setPalette(theme(true));
    const QColor onDark = field.palette().color(QPalette::Disabled, QPalette::Text);
    QVERIFY(onDark.lightness() > onLight.lightness());
    window.setPalette(theme(false));
    QCOMPARE(field.palette().color(QPalette::Disabled, QPalette::Text), onLight);
}

void tst_LegibleWhenDisabled::nothingElseChanges()
{
    QWidget window;
    window.setPalette(theme(true));
    const QLineEdit plain(&window);
    QLineEdit field(&window);
    new LegibleWhenDisabled(field);
    field.setEnabled(false);
    QVERIFY(!field.isEnabled());
    for (const QPalette::ColorRole role : {QPalette::Base, QPalette::Button, QPalette::WindowText})
        QCOMPARE(field.palette().color(QPalette::Disabled, role),
                 plain.palette().color(QPalette::Disabled, role));
    QCOMPARE(field.palette().color(QPalette::Active, QPalette::Text),
             plain.palette().color(QPalette::Active, QPalette::Text));
}

WUFFER_TEST(tst_LegibleWhenDisabled)
#include "tst_LegibleWhenDisabled.moc"
