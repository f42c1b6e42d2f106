#include "app/WufferApplication.h"
#include "app/WufferController.h"
#include "support/FakeTranslator.h"
#include "support/InLanguage.h"
#include "support/Menus.h"
#include "support/TestMain.h"
#include "support/TimerFixture.h"
#include "timer/TargetTimeSheet.h"
#include "tools/NumberField.h"

#include <QLabel>
#include <QTabBar>
#include <QTabWidget>

namespace
{
/// The texts that a user can reach by their mnemonics at one moment.
struct Group
{
    QString name;
    QStringList texts;
};

/// The items of the menu, followed by those of its submenus.
QList<Group> groupsOf(QMenu &menu)
{
    Q_EMIT menu.aboutToShow();
    Group own{menu.title(), {}};
    QList<Group> groups;
    for (const QAction *item : menu.actions()) {
        own.texts << item->text();
        if (item->menu())
            groups << groupsOf(*item->menu());
    }
    groups.prepend(own);
    return groups;
}

/// The texts of the window's visible labels, buttons and tabs, and the titles of its menus.
Group groupOf(const QWidget &window)
{
    Group group{window.windowTitle(), {}};
    for (const QWidget *widget : window.findChildren<QWidget *>()) {
        if (!widget->isVisible() || widget->window() != &window)
            continue;
        const auto *label = qobject_cast<const QLabel *>(widget);
        if (label && label->buddy())
            group.texts << label->text();
        else if (const auto *button = qobject_cast<const QAbstractButton *>(widget))
            group.texts << button->text();
        else if (const auto *tabs = qobject_cast<const QTabBar *>(widget))
            for (int index = 0; index < tabs->count(); ++index)
                group.texts << tabs->tabText(index);
        else if (const auto *bar = qobject_cast<const QMenuBar *>(widget))
            for (const QAction *title : bar->actions())
                group.texts << title->text();
    }
    return group;
}

/// The letter to press; empty if the text has none.
QString letterOf(const QString &text)
{
    return QKeySequence::mnemonic(text).toString().section(QLatin1Char('+'), -1);
}

/// The groups of the whole program, in the language of the moment.
QList<Group> allGroups()
{
    TestServices services;
    WufferController controller;
    controller.awakeFromNib();
    WufferWindow &window = *WufferApplication::getWuffers().front()->window();
    activate(window);
    WufferApplication::getWuffers().front()->showHideAdvanced();
    QList<Group> groups{groupOf(window)};
    for (const QAction *title : window.menuBar()->actions())
        groups << groupsOf(*title->menu());

    WufferApplication::getWuffers().front()->targetTime();
    groups << groupOf(windowWith<TargetTimeSheet>());
    controller.showConverter();
    groups << groupOf(windowWith<NumberField>());
    controller.showPreferences();
    auto &pages = *windowWith<QTabWidget>().findChild<QTabWidget *>();
    for (int page = 0; page < pages.count(); ++page) {
        pages.setCurrentIndex(page);
        groups << groupOf(*pages.window());
    }
    return groups;
}
/// Letters that are marked twice in a group, and marks that are on no letter.
QStringList allClashes()
{
    QStringList clashes;
    for (const Group &group : allGroups()) {
        QHash<QString, QString> texts;
        for (const QString &text : group.texts) {
            const QString letter = letterOf(text);
            if (!letter.isEmpty() && texts.contains(letter))
                clashes << group.name + QStringLiteral(": ") + texts[letter] +
                               QStringLiteral(" / ") + text;
            if (!letter.isEmpty() && !letter.front().isLetterOrNumber())
                clashes << group.name + QStringLiteral(": no letter in ") + text;
            texts[letter] = text;
        }
    }
    return clashes;
}
} // namespace

/// The letters that open menus and press buttons together with Alt, in each language.
class tst_MnemonicsOfLanguages final : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void aLetterMarkedTwiceIsFound();
    void eachLetterIsMarkedOnce_data();
    void eachLetterIsMarkedOnce();
    void aTranslationMarksWhatEnglishMarks_data() { eachLetterIsMarkedOnce_data(); }
    void aTranslationMarksWhatEnglishMarks();
};

void tst_MnemonicsOfLanguages::aLetterMarkedTwiceIsFound()
{
    const FakeTranslator clashing({{QStringLiteral("Fu&ll screen"), QStringLiteral("&Full screen")},
                                   {QStringLiteral("&Quit"), QStringLiteral("&-")}});
    // The box takes the letter of a menu.
    QCOMPARE(allClashes().size(), 2);
}

void tst_MnemonicsOfLanguages::eachLetterIsMarkedOnce_data()
{
    QTest::addColumn<QString>("language");
    for (const QString &language : InLanguage::all())
        QTest::newRow(qPrintable(language)) << language;
}

void tst_MnemonicsOfLanguages::eachLetterIsMarkedOnce()
{
    QFETCH(const QString, language);
    const InLanguage spoken(language);
    const QStringList clashes = allClashes();
    QVERIFY2(clashes.isEmpty(), qPrintable(clashes.join(QLatin1Char('\n'))));
}

void tst_MnemonicsOfLanguages::aTranslationMarksWhatEnglishMarks()
{
    QFETCH(const QString, language);
    const QList<Group> english = allGroups();
    const InLanguage spoken(language);
    const QList<Group> own = allGroups();
    QCOMPARE(own.size(), english.size());
    QStringList differences;
    for (qsizetype group = 0; group < own.size(); ++group) {
        QCOMPARE(own[group].texts.size(), english[group].texts.size());
        for (qsizetype each = 0; each < own[group].texts.size(); ++each) {
            const QString &text = own[group].texts[each];
            if (letterOf(text).isEmpty() != letterOf(english[group].texts[each]).isEmpty())
                differences << own[group].name + QStringLiteral(": ") + text;
        }
    }
    QVERIFY2(differences.isEmpty(), qPrintable(differences.join(QLatin1Char('\n'))));
}

WUFFER_TEST(tst_MnemonicsOfLanguages)
#include "tst_MnemonicsOfLanguages.moc"
