#include "app/WufferApplication.h"
#include "support/HelpReader.h"
#include "support/TestMain.h"

#include <QAccessible>
#include <QToolButton>

#include <algorithm>

/// How the user opens the help, moves through it and searches it.
class tst_HelpWindow final : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void itIsMadeWhenAskedFor();
    void theMenuAndItsKeyOpenTheFirstPage();
    void theButtonOfTheDrawerOpensThePageOnFinishActions();
    void openedAgainItIsTheSameWindow();
    void everyPageIsListedAndShown();
    void thePagesOfAHitAreListedWithTheirCount();
    void theHitsOfThePageAreMarked();
    void returnGoesFromHitToHitAndBeginsAgain();
    void theKeysOfTheSearchGoForthAndBack();
    void aSearchWithoutHitsSaysSo();
    void aListedPageIsOpenedWhileSearching();
    void escapeEndsTheSearchAndThenCloses_data();
    void escapeEndsTheSearchAndThenCloses();
    void openingEndsTheSearch();
    void alreadyReadPagesComeBack();
    void itCanBeReadAloud();
    void theMenusWorkInIt();
};

void tst_HelpWindow::itIsMadeWhenAskedFor()
{
    const Reader reader;
    const auto windows = QApplication::topLevelWidgets();
    QVERIFY(std::ranges::none_of(
        windows, [](const QWidget *window) { return window->findChild<HelpPanel *>(); }));
}

void tst_HelpWindow::theMenuAndItsKeyOpenTheFirstPage()
{
    Reader reader;
    QAction &item = *menu(Reader::timerWindow(), QStringLiteral("Help")).actions().constFirst();
    QCOMPARE(item.text().remove(QLatin1Char('&')), QStringLiteral("Wuffer Help"));
    QCOMPARE(item.shortcut(), QKeySequence(QKeySequence::HelpContents));
    QCOMPARE(item.shortcut(), QKeySequence(Qt::Key_F1));
    item.trigger();
    QTRY_VERIFY(Reader::window().isActiveWindow());
    QCOMPARE(Reader::page(), QStringLiteral("index"));
    QCOMPARE(QApplication::focusWidget(), &Reader::browser());
    Reader::window().close();
    activate(Reader::timerWindow());
    Reader::press(Qt::Key_F1);
    QTRY_VERIFY(Reader::window().isActiveWindow());
}

void tst_HelpWindow::theButtonOfTheDrawerOpensThePageOnFinishActions()
{
    Reader reader;
    child<QToolButton>(Reader::timerWindow(), "_helpButton").click();
    QTRY_VERIFY(Reader::window().isActiveWindow());
    QCOMPARE(Reader::page(), QStringLiteral("finish-actions"));
    QCOMPARE(Reader::list().currentItem()->text(), QStringLiteral("Finish actions and chains"));
    QVERIFY(
        Reader::browser().toPlainText().startsWith(QStringLiteral("Finish actions and chains")));
}

void tst_HelpWindow::openedAgainItIsTheSameWindow()
{
    Reader reader;
    reader.open();
    const auto windows = QApplication::topLevelWidgets().size();
    child<QToolButton>(Reader::timerWindow(), "_helpButton").click();
    QCOMPARE(Reader::page(), QStringLiteral("finish-actions"));
    Reader::window().close();
    reader.controller.showHelp();
    QVERIFY(Reader::window().isVisible());
    QCOMPARE(Reader::page(), QStringLiteral("index"));
    QCOMPARE(QApplication::topLevelWidgets().size(), windows);
}

void tst_HelpWindow::everyPageIsListedAndShown()
{
    Reader reader;
    reader.open();
    QCOMPARE(Reader::list().count(), static_cast<int>(Reader::browser().pages().size()));
    for (int row = 0; row < Reader::list().count(); ++row) {
        Reader::list().setCurrentRow(row);
        QCOMPARE(Reader::browser().currentPage(), row);
        QVERIFY(Reader::browser().toPlainText().startsWith(Reader::list().item(row)->text()));
    }
}

void tst_HelpWindow::thePagesOfAHitAreListedWithTheirCount()
{
    Reader reader;
    reader.open();
    const QStringList all = Reader::listed();
    reader.searchFor("Gas MARKS");
    QCOMPARE(Reader::listed(), QStringList{QStringLiteral("Kitchen tools (2)")});
    QCOMPARE(Reader::count(), QStringLiteral("Found: 2"));
    Reader::field().setText(QStringLiteral("wuff"));
    int sum = 0;
    for (const QString &text : Reader::listed())
        sum += text.section(QLatin1Char('('), -1).chopped(1).toInt();
    QVERIFY(Reader::listed().size() > 3);
    QCOMPARE(Reader::count(), QStringLiteral("Found: %1").arg(sum));
    Reader::field().clear();
    QCOMPARE(Reader::listed(), all);
    QCOMPARE(Reader::count(), QString());
    QCOMPARE(Reader::list().currentItem()->text(), QStringLiteral("Welcome to Wuffer"));
}

void tst_HelpWindow::theHitsOfThePageAreMarked()
{
    Reader reader;
    reader.open();
    reader.searchFor("time");
    const auto inPage =
        Reader::browser().toPlainText().count(QStringLiteral("time"), Qt::CaseInsensitive);
    const QString ofPage = QStringLiteral("Welcome to Wuffer (%1)").arg(inPage);
    QCOMPARE(Reader::listed().constFirst(), ofPage);
    const auto marks = Reader::browser().extraSelections();
    QCOMPARE(marks.size(), inPage);
    for (const QTextEdit::ExtraSelection &mark : marks)
        QCOMPARE(mark.cursor.selectedText().toLower(), QStringLiteral("time"));
    Reader::press(Qt::Key_Escape);
    QVERIFY(Reader::browser().extraSelections().isEmpty());
}

void tst_HelpWindow::returnGoesFromHitToHitAndBeginsAgain()
{
    Reader reader;
    reader.open();
    reader.searchFor("marks");
    QCOMPARE(Reader::page(), QStringLiteral("index"));
    // The word is on two pages; one says that countdown sounds mark the last seconds.
    const auto hits = Reader::count().section(QLatin1Char(' '), 1).toInt();
    QCOMPARE(hits, 2);
    Reader::press(Qt::Key_Return);
    QCOMPARE(Reader::page(), QStringLiteral("sounds"));
    QCOMPARE(Reader::selected(), QStringLiteral("marks"));
    QCOMPARE(Reader::count(), QStringLiteral("1 of 2"));
    QCOMPARE(QApplication::focusWidget(), &Reader::field());
    Reader::press(Qt::Key_Return);
    QCOMPARE(Reader::page(), QStringLiteral("kitchen"));
    QCOMPARE(Reader::list().currentItem()->text(), QStringLiteral("Kitchen tools (1)"));
    QCOMPARE(Reader::count(), QStringLiteral("2 of 2"));
    Reader::press(Qt::Key_Return);
    QCOMPARE(Reader::page(), QStringLiteral("sounds"));
    QCOMPARE(Reader::count(), QStringLiteral("1 of 2"));
}

void tst_HelpWindow::theKeysOfTheSearchGoForthAndBack()
{
    Reader reader;
    reader.open();
    Reader::press(Qt::Key_F3);
    QCOMPARE(QApplication::focusWidget(), &Reader::field());
    reader.searchFor("chain");
    const int hits = Reader::count().section(QLatin1Char(' '), 1).toInt();
    QVERIFY(hits > 5);
    for (int hit = 1; hit <= hits; ++hit) {
        Reader::press(Qt::Key_F3);
        QCOMPARE(Reader::count(), QStringLiteral("%1 of %2").arg(hit).arg(hits));
        QCOMPARE(Reader::selected().toLower(), QStringLiteral("chain"));
    }
    for (int hit = hits - 1; hit >= 1; --hit) {
        Reader::press(Qt::Key_F3, Qt::ShiftModifier);
        QCOMPARE(Reader::count(), QStringLiteral("%1 of %2").arg(hit).arg(hits));
    }
    Reader::press(Qt::Key_F3, Qt::ShiftModifier);
    QCOMPARE(Reader::count(), QStringLiteral("%1 of %1").arg(hits));
}

void tst_HelpWindow::aSearchWithoutHitsSaysSo()
{
    Reader reader;
    reader.open();
    reader.searchFor("xyzzy");
    QCOMPARE(Reader::listed(), QStringList());
    QCOMPARE(Reader::count(), QStringLiteral("Nothing found"));
    Reader::press(Qt::Key_Return);
    Reader::press(Qt::Key_F3, Qt::ShiftModifier);
    QCOMPARE(Reader::page(), QStringLiteral("index"));
}

void tst_HelpWindow::aListedPageIsOpenedWhileSearching()
{
    Reader reader;
    reader.open();
    reader.searchFor("butter");
    QCOMPARE(Reader::list().currentRow(), -1);
    const QRect first = Reader::list().visualItemRect(Reader::list().item(0));
    QTest::mouseClick(Reader::list().viewport(), Qt::LeftButton, {}, first.center());
    QCOMPARE(Reader::page(), QStringLiteral("kitchen"));
    QCOMPARE(Reader::browser().extraSelections().size(), qsizetype(1));
    QCOMPARE(Reader::count(), QStringLiteral("Found: 1"));
}

void tst_HelpWindow::escapeEndsTheSearchAndThenCloses_data()
{
    QTest::addColumn<QString>("focus");
    for (const char *name : {"_searchField", "_pageList", "_browser", "_backButton"})
        QTest::newRow(name) << QString::fromLatin1(name);
}

void tst_HelpWindow::escapeEndsTheSearchAndThenCloses()
{
    QFETCH(const QString, focus);
    Reader reader;
    reader.open();
    // Visits a second page, so that there is one to go back to.
    Reader::browser().showPage(QStringLiteral("keyboard"));
    reader.searchFor("chain");
    child<QWidget>(Reader::panel(), focus.toLatin1().constData()).setFocus();
    QCOMPARE(QApplication::focusWidget()->objectName(), focus);
    Reader::press(Qt::Key_Escape);
    QCOMPARE(Reader::field().text(), QString());
    QVERIFY(Reader::window().isVisible());
    Reader::press(Qt::Key_Escape);
    QVERIFY(!Reader::window().isVisible());
}

void tst_HelpWindow::openingEndsTheSearch()
{
    Reader reader;
    reader.open();
    reader.searchFor("butter");
    Q_EMIT WufferApplication::instance().helpRequested(QStringLiteral("finish-actions"));
    QCOMPARE(Reader::field().text(), QString());
    QCOMPARE(Reader::page(), QStringLiteral("finish-actions"));
    QVERIFY(Reader::listed().size() > 5);
}

void tst_HelpWindow::alreadyReadPagesComeBack()
{
    Reader reader;
    reader.open();
    auto &back = child<QToolButton>(Reader::panel(), "_backButton");
    auto &forward = child<QToolButton>(Reader::panel(), "_forwardButton");
    QVERIFY(!back.isEnabled() && !forward.isEnabled());
    // Follows the first link of the first page.
    Reader::press(Qt::Key_Tab);
    Reader::press(Qt::Key_Return);
    QCOMPARE(Reader::page(), QStringLiteral("first-timer"));
    QVERIFY(back.isEnabled() && !forward.isEnabled());
    Reader::press(Qt::Key_F, Qt::ControlModifier);
    Reader::press(Qt::Key_Left, Qt::AltModifier);
    QCOMPARE(Reader::page(), QStringLiteral("index"));
    QCOMPARE(Reader::list().currentRow(), 0);
    Reader::press(Qt::Key_Right, Qt::AltModifier);
    QCOMPARE(Reader::page(), QStringLiteral("first-timer"));
    back.click();
    QCOMPARE(Reader::page(), QStringLiteral("index"));
    forward.click();
    QCOMPARE(Reader::page(), QStringLiteral("first-timer"));
}

void tst_HelpWindow::itCanBeReadAloud()
{
    Reader reader;
    reader.open();
    const auto nameOf = [](QWidget &widget) {
        return QAccessible::queryAccessibleInterface(&widget)->text(QAccessible::Name);
    };
    for (auto *widget : Reader::panel().findChildren<QWidget *>()) {
        if (widget->focusPolicy() & Qt::TabFocus)
            QVERIFY2(!nameOf(*widget).isEmpty(), qPrintable(widget->objectName()));
    }
    QCOMPARE(nameOf(Reader::browser()), QStringLiteral("Welcome to Wuffer"));
    Reader::browser().showPage(QStringLiteral("sounds"));
    QCOMPARE(nameOf(Reader::browser()), QStringLiteral("Sounds"));
    const auto *text = QAccessible::queryAccessibleInterface(&Reader::browser())->textInterface();
    QVERIFY(text->text(0, text->characterCount()).contains(QStringLiteral("Silence")));
    reader.searchFor("butter");
    QCOMPARE(nameOf(child<QLabel>(Reader::panel(), "_hitsLabel")), QStringLiteral("Found: 1"));
}

void tst_HelpWindow::theMenusWorkInIt()
{
    Reader reader;
    reader.open();
    QCOMPARE(Reader::window().menuBar()->actions(), Reader::timerWindow().menuBar()->actions());
    Reader::press(Qt::Key_N, Qt::ControlModifier);
    QCOMPARE(WufferApplication::getWuffers().size(), std::size_t(2));
}

WUFFER_TEST(tst_HelpWindow)
#include "tst_HelpWindow.moc"
