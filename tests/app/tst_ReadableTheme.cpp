#include "app/ReadableTheme.h"
#include "base/Contrast.h"
#include "support/TestMain.h"

#include <QApplication>

namespace
{
double contrast(const QPalette &palette, QPalette::ColorRole text, QPalette::ColorRole ground)
{
    return Contrast::ratio(Rgb::of(palette.color(text)), Rgb::of(palette.color(ground)));
}

/// A dark theme whose links and hints cannot be read.
QPalette darkTheme()
{
    QPalette dark(QColor(50, 50, 50), QColor(40, 40, 40));
    dark.setColor(QPalette::Base, QColor(20, 20, 20));
    dark.setColor(QPalette::Link, Qt::blue);
    dark.setColor(QPalette::PlaceholderText, QColor(255, 255, 255, 90));
    return dark;
}
} // namespace

class tst_ReadableTheme final : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { QApplication::setPalette(_start); }
    void aReadableThemeStaysAsItIs();
    void whatCannotBeReadIsChanged();
    void aSelectionKeepsItsTextAndGetsAnotherGround();
    void aPaleHintIsJudgedAsItIsSeen();
    void theApplicationFollowsEachNewTheme();

private:
    QPalette _start = QApplication::palette();
};

void tst_ReadableTheme::aReadableThemeStaysAsItIs()
{
    const QPalette readable = ReadableTheme::readablePalette(darkTheme());
    QCOMPARE(ReadableTheme::readablePalette(readable), readable);
}

void tst_ReadableTheme::whatCannotBeReadIsChanged()
{
    const QPalette theme = darkTheme();
    QVERIFY(contrast(theme, QPalette::Link, QPalette::Base) < Contrast::kText);
    const QPalette readable = ReadableTheme::readablePalette(theme);
    QVERIFY(contrast(readable, QPalette::Link, QPalette::Base) >= Contrast::kText);
    QVERIFY(contrast(readable, QPalette::Link, QPalette::Window) >= Contrast::kText);
    QCOMPARE(readable.color(QPalette::Text), theme.color(QPalette::Text));
    QCOMPARE(readable.color(QPalette::Base), theme.color(QPalette::Base));
    QCOMPARE(readable.color(QPalette::Disabled, QPalette::Text),
             theme.color(QPalette::Disabled, QPalette::Text));
}

void tst_ReadableTheme::aSelectionKeepsItsTextAndGetsAnotherGround()
{
    QPalette theme = darkTheme();
    theme.setColor(QPalette::Highlight, QColor(48, 140, 198));
    theme.setColor(QPalette::HighlightedText, Qt::white);
    QVERIFY(contrast(theme, QPalette::HighlightedText, QPalette::Highlight) < Contrast::kText);
    const QPalette readable = ReadableTheme::readablePalette(theme);
    QCOMPARE(readable.color(QPalette::HighlightedText), QColor(Qt::white));
    QVERIFY(contrast(readable, QPalette::HighlightedText, QPalette::Highlight) >= Contrast::kText);
}

void tst_ReadableTheme::aPaleHintIsJudgedAsItIsSeen()
{
    QPalette theme = darkTheme();
    theme.setColor(QPalette::PlaceholderText, QColor(255, 255, 255, 200));
    const QPalette readable = ReadableTheme::readablePalette(theme);
    QCOMPARE(readable.color(QPalette::PlaceholderText), QColor(255, 255, 255, 200));
    const QPalette changed = ReadableTheme::readablePalette(darkTheme());
    QCOMPARE(changed.color(QPalette::PlaceholderText).alpha(), 255);
    QVERIFY(contrast(changed, QPalette::PlaceholderText, QPalette::Base) >= Contrast::kText);
}

void tst_ReadableTheme::theApplicationFollowsEachNewTheme()
{
    QApplication::setPalette(darkTheme());
    QVERIFY(contrast(QApplication::palette(), QPalette::Link, QPalette::Base) >= Contrast::kText);
    QCOMPARE(QApplication::palette().color(QPalette::Base), QColor(20, 20, 20));

    QPalette other = darkTheme();
    other.setColor(QPalette::Base, QColor(70, 70, 70));
    QApplication::setPalette(other);
    QVERIFY(contrast(QApplication::palette(), QPalette::Link, QPalette::Base) >= Contrast::kText);

    // The colours of the desktop itself come back, with none that were set for another theme.
    QApplication::setPalette(QPalette());
    QCOMPARE(QApplication::palette(), _start);
}

WUFFER_TEST(tst_ReadableTheme)
#include "tst_ReadableTheme.moc"
