#include "app/CommandLine.h"
#include "app/MainMenu.h"
#include "rules/SoundEntries.h"
#include "support/HelpReader.h"
#include "support/TestMain.h"
#include "support/TranslatedProgram.h"

#include <QComboBox>
#include <QRegularExpression>

/// Each text of the menus and of the windows beside the timers is translated, or is data.
class tst_TranslatedWindows final : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void theMenusAreTranslated();
    void theHomeWindowIsTranslated();
    void thePreferencesAreTranslated();
    void soundsThatCannotBePlayedAreTranslated();
    void theDialogForSoundFilesIsTranslated();
    void theConverterIsTranslated();
    void theMeasurementsAreTranslated();
    void theHelpIsTranslated();
    void theTableOfKeysIsTranslated();
    void theAboutDialogIsTranslated();
    void theAnswersOfTheCommandLineAreTranslated();
};

void tst_TranslatedWindows::theMenusAreTranslated()
{
    TranslatedProgram program;
    activate(TranslatedProgram::window());
    TranslatedProgram::openMenus();
    program.texts.gather();
    program.controller.newWuffer();
    activate(TranslatedProgram::window());
    TranslatedProgram::timer().goPressed();
    TranslatedProgram::openMenus();
    program.check();
}

void tst_TranslatedWindows::theHomeWindowIsTranslated()
{
    TranslatedProgram program;
    TranslatedProgram::window().close();
    QCoreApplication::processEvents();
    QVERIFY(QApplication::activeWindow());
    program.check();
}

void tst_TranslatedWindows::thePreferencesAreTranslated()
{
    TranslatedProgram program;
    program.controller.showPreferences();
    program.check();
}

void tst_TranslatedWindows::soundsThatCannotBePlayedAreTranslated()
{
    TranslatedTexts texts;
    TestServices services;
    for (const char *key : {"alarmPath", "countdownPath"})
        services.defaults.setObject(QStringLiteral("/nowhere/tone.wav"), QString::fromLatin1(key));
    services.defaults.setObject(QStringList(QStringLiteral("/nowhere/tone.wav")),
                                QStringLiteral("soundHistory"));
    WufferController controller;
    controller.awakeFromNib();
    controller.showPreferences();
    texts.gather();
    texts.check();
}

void tst_TranslatedWindows::theDialogForSoundFilesIsTranslated()
{
    TranslatedProgram program;
    program.controller.showPreferences();
    const QWidgetList widgets = QApplication::allWidgets();
    const auto named =
        std::ranges::find(widgets, QStringLiteral("_alarmCombo"), &QWidget::objectName);
    QVERIFY(named != widgets.end());
    auto &combo = static_cast<QComboBox &>(**named);
    const int select = combo.findText(SoundEntries::shownText(SoundEntry::SelectAnother));
    QVERIFY(select >= 0);
    combo.setCurrentIndex(select);
    Q_EMIT combo.activated(select);
    QCOMPARE(program.openPanel.titles.size(), 1);
    program.texts.add(program.openPanel.titles.constFirst(), "title of the dialog");
    program.texts.check();
}

void tst_TranslatedWindows::theConverterIsTranslated()
{
    TranslatedProgram program;
    program.controller.showConverter();
    program.check();
}

void tst_TranslatedWindows::theMeasurementsAreTranslated()
{
    TranslatedProgram program;
    program.controller.showMeasurements();
    program.check();
}

void tst_TranslatedWindows::theHelpIsTranslated()
{
    TranslatedTexts texts;
    Reader reader;
    reader.open();
    // The pages are translated as whole files.
    Reader::browser().setPages({});
    Reader::browser().clear();
    Reader::browser().setAccessibleName({});
    Reader::list().clear();
    texts.gather();
    Reader::field().setText(QStringLiteral("Tea"));
    texts.gather();
    texts.check();
}

void tst_TranslatedWindows::theTableOfKeysIsTranslated()
{
    TranslatedProgram program;
    const std::vector<MenuKeys> keys = MainMenu::keys();
    QVERIFY(!keys.empty());
    for (const MenuKeys &each : keys) {
        program.texts.add(each.menu, "menu in the table of keys");
        program.texts.add(each.item, "item in the table of keys");
    }
    program.texts.check();
    QVERIFY(helpPages(keys).back().html.contains(QStringLiteral("<h2>⟦")));
}

void tst_TranslatedWindows::theAboutDialogIsTranslated()
{
    TranslatedProgram program;
    program.controller.showAbout();
    program.check();
}

void tst_TranslatedWindows::theAnswersOfTheCommandLineAreTranslated()
{
    TranslatedTexts texts;
    const QString program = QStringLiteral("wuffer");
    for (const char *argument : {"--sing", "tea.txt"}) {
        const CommandLine line = readCommandLine({program, QString::fromLatin1(argument)});
        texts.add(line.answer.value_or(QString()), "error");
    }
    texts.check();
    // Only the names of the options and of the program are left.
    QString help = *readCommandLine({program, QStringLiteral("--help")}).answer;
    static const QRegularExpression translated(QStringLiteral("⟦[^⟦⟧]*⟧"));
    while (help.contains(translated))
        help.remove(translated);
    static const QRegularExpression gaps(QStringLiteral("[\\s,]+"));
    const QStringList words = help.split(gaps, Qt::SkipEmptyParts);
    for (const QString &word : words)
        QVERIFY2(word.startsWith(QLatin1Char('-')), qPrintable(word));
}

WUFFER_TEST(tst_TranslatedWindows)
#include "tst_TranslatedWindows.moc"
