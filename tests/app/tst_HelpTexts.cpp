#include "rules/TimerTexts.h"
#include "support/HelpReader.h"
#include "support/TestMain.h"
#include "timer/TargetTimeSheet.h"

#include <QRegularExpression>
#include <QSet>
#include <QTabBar>
#include <QTextTable>

#include <algorithm>

namespace
{
/// The rows of all tables of a document. Each begins with the heading above its table; heading and
/// cells are joined by bars.
QStringList tableRows(const QTextDocument &document)
{
    QStringList rows;
    for (QTextFrame *frame : document.rootFrame()->childFrames()) {
        const auto *table = qobject_cast<QTextTable *>(frame);
        if (!table)
            continue;
        QTextBlock heading = document.findBlock(table->firstPosition() - 1);
        while (heading.isValid() && heading.text().isEmpty())
            heading = heading.previous();
        for (int row = 0; row < table->rows(); ++row) {
            QStringList cells{heading.text()};
            for (int column = 0; column < table->columns(); ++column)
                cells << table->cellAt(row, column).firstCursorPosition().block().text();
            rows << cells.join(QLatin1Char('|'));
        }
    }
    return rows;
}

QString withoutMnemonic(QString text)
{
    return text.remove(QLatin1Char('&'));
}

QString keysOf(const QAction &item)
{
    QStringList keys;
    for (const QKeySequence &each : item.shortcuts())
        keys << each.toString(QKeySequence::NativeText);
    return keys.join(QStringLiteral(", "));
}

/// "File menu|New Timer|Ctrl+N" for every item of the menu bar that has keys, except the presets.
QStringList menuRows(const QMainWindow &window)
{
    QStringList rows;
    for (const QAction *top : window.menuBar()->actions()) {
        const QString title = withoutMnemonic(top->text());
        for (const QAction *item : top->menu()->actions()) {
            if (title != QStringLiteral("Presets") && !item->shortcuts().isEmpty())
                rows << title + QStringLiteral(" menu|") + withoutMnemonic(item->text()) +
                            QLatin1Char('|') + keysOf(*item);
        }
    }
    return rows;
}

QSet<QString> presetKeys(const QMainWindow &window)
{
    QSet<QString> keys;
    QMenu &presets = menu(window, QStringLiteral("Presets"));
    const QMenu &save = menu(window, QStringLiteral("Save Wuffer to Preset"));
    for (const QAction *item : presets.actions() + save.actions())
        keys << keysOf(*item);
    keys.remove(QString());
    return keys;
}

/// The groups captured by each match of the expression in all pages, joined by bars.
QStringList matchesInPages(const char *expression)
{
    QStringList found;
    for (const HelpPage &page : Reader::browser().pages()) {
        QRegularExpressionMatchIterator each =
            QRegularExpression(QString::fromUtf8(expression)).globalMatch(page.html);
        while (each.hasNext())
            found << each.next().capturedTexts().mid(1).join(QLatin1Char('|'));
    }
    return found;
}
/// The texts of a window's controls and menus.
QStringList textsIn(const QWidget &window)
{
    QStringList texts;
    for (const auto *action : window.findChildren<QAction *>())
        texts << action->text();
    for (const auto *button : window.findChildren<QAbstractButton *>())
        texts << button->text();
    for (const auto *label : window.findChildren<QLabel *>())
        texts << label->text();
    for (const auto *tabs : window.findChildren<QTabBar *>()) {
        for (int tab = 0; tab < tabs->count(); ++tab)
            texts << tabs->tabText(tab);
    }
    for (const auto *combo : window.findChildren<QComboBox *>()) {
        for (int item = 0; item < combo->count(); ++item)
            texts << combo->itemText(item);
    }
    return texts;
}
} // namespace

/// Compares what the help says about keys, menus and buttons with the real ones.
class tst_HelpTexts final : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void everyPageIsShort();
    void theTableOfShortcutsEqualsTheMenus();
    void theKeysOfThePresetsAreThoseOfTheMenu();
    void everyKeyInTheTextIsInTheMenus();
    void everyItemInTheTextIsInTheMenuThatItNames();
    void everyNameInTheTextStandsInAWindow();
};

void tst_HelpTexts::everyPageIsShort()
{
    Reader reader;
    reader.open();
    for (const HelpPage &page : Reader::browser().pages()) {
        Reader::browser().showPage(page.name);
        const double screens =
            Reader::browser().document()->size().height() / Reader::browser().viewport()->height();
        QVERIFY2(screens <= 2.2, qPrintable(QStringLiteral("%1: %2").arg(page.name).arg(screens)));
    }
}

void tst_HelpTexts::theTableOfShortcutsEqualsTheMenus()
{
    Reader reader;
    reader.open();
    Reader::browser().showPage(QStringLiteral("keyboard"));
    const QStringList rows = tableRows(*Reader::browser().document());
    const QStringList ofMenus = rows.filter(QRegularExpression(QStringLiteral("^\\w+ menu\\|")));
    QCOMPARE(ofMenus, menuRows(Reader::window()));
    QVERIFY(ofMenus.contains(QStringLiteral("File menu|New Timer|Ctrl+N")));
    QVERIFY(ofMenus.contains(QStringLiteral("Help menu|Wuffer Help|F1")));
    QVERIFY(rows.contains(QStringLiteral("In this help|Search|Ctrl+F")));
}

void tst_HelpTexts::theKeysOfThePresetsAreThoseOfTheMenu()
{
    Reader reader;
    reader.open();
    Reader::browser().showPage(QStringLiteral("keyboard"));
    const QStringList rows = tableRows(*Reader::browser().document())
                                 .filter(QRegularExpression(QStringLiteral("^Presets\\|")));
    QSet<QString> keys;
    for (const QString &row : rows) {
        const QString modifier = row.section(QLatin1Char('|'), 2).section(QLatin1Char('+'), 0, 0);
        QVERIFY(row.endsWith(QStringLiteral("|%1+1 to %1+9, %1+0").arg(modifier)));
        for (int digit = 0; digit <= 9; ++digit)
            keys << QStringLiteral("%1+%2").arg(modifier).arg(digit);
    }
    QCOMPARE(keys, presetKeys(Reader::window()));
}

void tst_HelpTexts::everyKeyInTheTextIsInTheMenus()
{
    Reader reader;
    reader.open();
    QSet<QString> known = presetKeys(Reader::window());
    known << QStringLiteral("Ctrl+F") << QStringLiteral("F3");
    for (const QString &row : menuRows(Reader::window())) {
        for (const QString &keys : row.section(QLatin1Char('|'), 2).split(QStringLiteral(", ")))
            known << keys;
    }
    const QStringList named = matchesInPages("<kbd>((?:Ctrl\\+|Alt\\+\\d|F\\d).*?)</kbd>");
    QVERIFY(named.size() > 30);
    for (const QString &keys : named)
        QVERIFY2(known.contains(keys), qPrintable(keys));
}

void tst_HelpTexts::everyItemInTheTextIsInTheMenuThatItNames()
{
    Reader reader;
    reader.open();
    const QStringList rows = menuRows(Reader::window());
    const QStringList said =
        matchesInPages("<b>([^<]*)</b> in the (\\w+ menu) \\(<kbd>([^<]*)</kbd>\\)");
    QVERIFY(said.size() >= 8);
    for (const QString &each : said) {
        const QStringList parts = each.split(QLatin1Char('|'));
        const auto found = std::ranges::any_of(rows, [&](const QString &row) {
            const QStringList known = row.split(QLatin1Char('|'));
            return known[0] == parts[1] && known[1] == parts[0] &&
                   known[2].split(QStringLiteral(", ")).contains(parts[2]);
        });
        QVERIFY2(found, qPrintable(each));
    }
}

void tst_HelpTexts::everyNameInTheTextStandsInAWindow()
{
    Reader reader;
    reader.open();
    reader.controller.showConverter();
    const TargetTimeSheet sheet(Reader::timerWindow());
    QStringList texts{QStringLiteral("None"), TimerTexts::timer(),      TimerTexts::stop(),
                      TimerTexts::reset(),    TimerTexts::startChain(), TimerTexts::chained()};
    for (const QWidget *window : QApplication::topLevelWidgets())
        texts << textsIn(*window);
    QSet<QString> names;
    for (const QString &text : texts)
        names << withoutMnemonic(text).remove(QRegularExpression(QStringLiteral(":$")));
    const QStringList named = matchesInPages("<b>(.*?)</b>");
    QVERIFY(named.size() > 40);
    for (const QString &name : named)
        QVERIFY2(names.contains(name), qPrintable(name));
}

WUFFER_TEST(tst_HelpTexts)
#include "tst_HelpTexts.moc"
