#include "app/Translation.h"
#include "base/Mnemonics.h"
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

QString keysOf(const QAction &item)
{
    QStringList keys;
    for (const QKeySequence &each : item.shortcuts())
        keys << each.toString(QKeySequence::NativeText);
    return keys.join(QStringLiteral(", "));
}

/// The heading of the table with the keys of a menu.
QString headingOf(const QString &menu)
{
    return QCoreApplication::translate("HelpPages", "%1 menu").arg(menu);
}

QString presetsTitle()
{
    return Mnemonics::shown(QCoreApplication::translate("PresetsMenu", "&Presets"));
}

/// "File menu|New Timer|Ctrl+N" for every item of the menu bar that has keys, except the presets.
QStringList menuRows(const QMainWindow &window)
{
    QStringList rows;
    for (const QAction *top : window.menuBar()->actions()) {
        const QString title = Mnemonics::shown(top->text());
        for (const QAction *item : top->menu()->actions()) {
            if (title != presetsTitle() && !item->shortcuts().isEmpty())
                rows << QStringList{headingOf(title), Mnemonics::shown(item->text()), keysOf(*item)}
                            .join(u'|');
        }
    }
    return rows;
}

QSet<QString> presetKeys(const QMainWindow &window)
{
    QSet<QString> keys;
    QMenu &presets = menu(window, presetsTitle());
    const QMenu &save =
        menu(window, QCoreApplication::translate("PresetsMenu", "Save Wuffer to Preset"));
    for (const QAction *item : presets.actions() + save.actions())
        keys << keysOf(*item);
    keys.remove(QString());
    return keys;
}

/// The groups captured by each match of the expression in all pages, joined by bars.
QStringList matchesInPages(const QString &expression)
{
    QStringList found;
    for (const HelpPage &page : Reader::browser().pages()) {
        QRegularExpressionMatchIterator each =
            QRegularExpression(expression).globalMatch(page.html);
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

/// The program in the language of the row, with its help open.
struct Help final
{
    explicit Help(const QString &language) : translation({language}, {}) { reader.open(); }

    // Before all texts.
    const Translation translation;
    Reader reader;
};
} // namespace

/// Compares what the help says about keys, menus and buttons with the real ones.
class tst_HelpTexts final : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void everyPageIsShort_data() { languages(); }
    void everyPageIsShort();
    void theTableOfShortcutsEqualsTheMenus_data() { languages(); }
    void theTableOfShortcutsEqualsTheMenus();
    void theKeysOfThePresetsAreThoseOfTheMenu_data() { languages(); }
    void theKeysOfThePresetsAreThoseOfTheMenu();
    void everyKeyInTheTextIsInTheMenus_data() { languages(); }
    void everyKeyInTheTextIsInTheMenus();
    void everyItemInTheTextIsInTheMenuThatItNames_data() { languages(); }
    void everyItemInTheTextIsInTheMenuThatItNames();
    void everyNameInTheTextStandsInAWindow_data() { languages(); }
    void everyNameInTheTextStandsInAWindow();

private:
    /// A row for each language that has help pages.
    static void languages()
    {
        QTest::addColumn<QString>("language");
        for (const char *language : {"en", "de", "es", "fr"})
            QTest::newRow(language) << QString::fromLatin1(language);
    }
};

void tst_HelpTexts::everyPageIsShort()
{
    QFETCH(const QString, language);
    const Help help(language);
    for (const HelpPage &page : Reader::browser().pages()) {
        Reader::browser().showPage(page.name);
        const double screens =
            Reader::browser().document()->size().height() / Reader::browser().viewport()->height();
        // Most languages need more letters than English.
        const double most = language == QStringLiteral("en") ? 2.2 : 2.4;
        QVERIFY2(screens <= most, qPrintable(QStringLiteral("%1: %2").arg(page.name).arg(screens)));
    }
}

void tst_HelpTexts::theTableOfShortcutsEqualsTheMenus()
{
    QFETCH(const QString, language);
    const Help help(language);
    Reader::browser().showPage(QStringLiteral("keyboard"));
    const QStringList rows = tableRows(*Reader::browser().document());
    const QStringList ofMenus = menuRows(Reader::window());
    QVERIFY(ofMenus.size() > 15);
    const auto first = std::ranges::search(rows, ofMenus);
    QVERIFY2(!first.empty(), qPrintable(rows.join(u'\n') + u'\n' + ofMenus.join(u'\n')));
    // The heading ends the tables of the menus.
    const QString before = first.begin() == rows.begin() ? QString() : *std::prev(first.begin());
    QVERIFY(!before.startsWith(ofMenus.first().section(u'|', 0, 0)));
    const QString find = QKeySequence(QKeySequence::Find).toString(QKeySequence::NativeText);
    QCOMPARE(rows.filter(QRegularExpression(
                             QStringLiteral("\\|%1$").arg(QRegularExpression::escape(find))))
                 .size(),
             qsizetype(1));
}

void tst_HelpTexts::theKeysOfThePresetsAreThoseOfTheMenu()
{
    QFETCH(const QString, language);
    const Help help(language);
    Reader::browser().showPage(QStringLiteral("keyboard"));
    const QStringList rows =
        tableRows(*Reader::browser().document())
            .filter(QRegularExpression(QStringLiteral("^%1\\|").arg(presetsTitle())));
    QCOMPARE(rows.size(), qsizetype(2));
    static const QRegularExpression range(
        QStringLiteral("\\|([^|]+)\\+1 \\S+ (?:\\S+ )?\\1\\+9, \\1\\+0$"));
    QSet<QString> keys;
    for (const QString &row : rows) {
        const QString modifier = range.match(row).captured(1);
        QVERIFY2(!modifier.isEmpty(), qPrintable(row));
        for (int digit = 0; digit <= 9; ++digit)
            keys << QStringLiteral("%1+%2").arg(modifier).arg(digit);
    }
    QCOMPARE(keys, presetKeys(Reader::window()));
}

void tst_HelpTexts::everyKeyInTheTextIsInTheMenus()
{
    QFETCH(const QString, language);
    const Help help(language);
    QSet<QString> known = presetKeys(Reader::window());
    for (const QKeySequence::StandardKey key : {QKeySequence::Find, QKeySequence::FindNext})
        known << QKeySequence(key).toString(QKeySequence::NativeText);
    for (const QString &row : menuRows(Reader::window())) {
        for (const QString &keys : row.section(QLatin1Char('|'), 2).split(QStringLiteral(", ")))
            known << keys;
    }
    const QString control =
        QKeySequence(Qt::CTRL | Qt::Key_A).toString(QKeySequence::NativeText).chopped(2);
    const QStringList named =
        matchesInPages(QStringLiteral("<kbd>((?:%1\\+|Alt\\+\\d|F\\d).*?)</kbd>").arg(control));
    QVERIFY(named.size() > 30);
    for (const QString &keys : named)
        QVERIFY2(known.contains(keys), qPrintable(keys));
}

void tst_HelpTexts::everyItemInTheTextIsInTheMenuThatItNames()
{
    QFETCH(const QString, language);
    const Help help(language);
    const QStringList rows = menuRows(Reader::window());
    const QStringList said =
        matchesInPages(QStringLiteral("<b>([^<]*)</b> (?:in the|im|en el|dans le) ([^<(]*) "
                                      "\\(<kbd>([^<]*)</kbd>\\)"));
    QVERIFY(said.size() >= 8);
    for (const QString &each : said) {
        const QStringList parts = each.split(QLatin1Char('|'));
        const auto found = std::ranges::any_of(rows, [&](const QString &row) {
            const QStringList known = row.split(QLatin1Char('|'));
            // A heading begins with a capital letter.
            return known[0].compare(parts[1], Qt::CaseInsensitive) == 0 && known[1] == parts[0] &&
                   known[2].split(QStringLiteral(", ")).contains(parts[2]);
        });
        QVERIFY2(found, qPrintable(each));
    }
}

void tst_HelpTexts::everyNameInTheTextStandsInAWindow()
{
    QFETCH(const QString, language);
    Help help(language);
    help.reader.controller.showConverter();
    const TargetTimeSheet sheet(Reader::timerWindow());
    QStringList texts{QCoreApplication::translate("LinkMenu", "&None"),
                      TimerTexts::timer(),
                      TimerTexts::stop(),
                      TimerTexts::reset(),
                      TimerTexts::startChain(),
                      TimerTexts::chained()};
    for (const QWidget *window : QApplication::topLevelWidgets())
        texts << textsIn(*window);
    QSet<QString> names;
    for (const QString &text : texts)
        names << Mnemonics::shown(text).remove(QRegularExpression(QStringLiteral("\\x{202f}?:$")));
    const QStringList named = matchesInPages(QStringLiteral("<b>(.*?)</b>"));
    QVERIFY(named.size() > 40);
    for (const QString &name : named)
        QVERIFY2(names.contains(name), qPrintable(name));
}

WUFFER_TEST(tst_HelpTexts)
#include "tst_HelpTexts.moc"
