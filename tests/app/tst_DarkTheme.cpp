#include "app/DarkTheme.h"
#include "app/ReadableTheme.h"
#include "support/TestMain.h"
#include "support/TimerFixture.h"

#include <QApplication>

/// The dark colours of desktops that only tell of the preference.
class tst_DarkTheme final : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        Test::init();
        QApplication::setPalette(QPalette());
    }

    void itFollowsThePreference()
    {
        DarkTheme theme;
        const QColor light = window();
        QVERIFY(light.lightness() > 128);
        theme.setDark(true);
        QVERIFY(window().lightness() < 64);
        theme.setDark(true);
        QVERIFY(window().lightness() < 64);
        theme.setDark(false);
        QCOMPARE(window(), light);
    }

    void aThemeThatIsDarkItselfKeepsItsColours()
    {
        const QPalette own(QColor(10, 60, 10), QColor(0, 50, 0));
        QApplication::setPalette(own);
        DarkTheme theme;
        theme.setDark(true);
        QCOMPARE(window(), QColor(0, 50, 0));
        theme.setDark(false);
        QCOMPARE(window(), QColor(0, 50, 0));
    }

    void aTimerTurnsDarkAtOnce()
    {
        TimerFixture fixture;
        DarkTheme theme;
        theme.setDark(true);
        const auto ground = [&] { return fixture.timer.window()->palette().window().color(); };
        QTRY_COMPARE(ground(), DarkTheme::palette().window().color());
        theme.setDark(false);
        QTRY_VERIFY(ground().lightness() > 128);
    }

    void allOfItsTextsCanBeRead()
    {
        QCOMPARE(ReadableTheme::readablePalette(DarkTheme::palette()), DarkTheme::palette());
    }

private:
    [[nodiscard]] static QColor window() { return QApplication::palette().window().color(); }
};

WUFFER_TEST(tst_DarkTheme)
#include "tst_DarkTheme.moc"
