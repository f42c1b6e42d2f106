#include "app/Translation.h"
#include "support/TestMain.h"

#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QLibraryInfo>
#include <QTemporaryDir>
#include <QtEndian>

#include <sys/stat.h>

/// Damages the contents of a file.
using Damage = void (*)(QByteArray &contents);
Q_DECLARE_METATYPE(Damage)

/// The language of the texts: the program's own and those of Qt.
class tst_Translation final : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void eachLanguageIsShipped();
    void theLanguageOfTheUserIsShown();
    void theTextsOfQtAreInTheSameLanguage();
    void theFirstLanguageWithAFileIsShown();
    void englishBeforeAnotherLanguageIsShown();
    void withoutAFileTheTextsAreEnglish();
    void aDamagedFileMeansEnglish_data() { damages(); }
    void aDamagedFileMeansEnglish();
    void withADamagedFileOfQtItsTextsAreEnglish_data() { damages(); }
    void withADamagedFileOfQtItsTextsAreEnglish();
    void somethingElseThanAFileMeansEnglish();
    void withoutFilesOfQtItsTextsAreEnglish();
    void withoutTheObjectTheTextsAreEnglish();
    void numbersStayAsTheUserHasSetThem();
    void aLanguageFromRightToLeftTurnsTheWindows();
    void aReaderFromRightToLeftWhoSeesEnglishReadsFromLeftToRight();

private:
    static QString own() { return QCoreApplication::translate("MainMenu", "&New Timer"); }
    static QString ofQt() { return QCoreApplication::translate("QPlatformTheme", "Cancel"); }

    static void damages();
    static QByteArray contentsOf(const QString &path)
    {
        QFile file(path);
        if (!file.open(QIODevice::ReadOnly))
            qFatal("cannot read %s", qPrintable(path));
        return file.readAll();
    }
    static QString qtFile(const char *language)
    {
        return QDir(QLibraryInfo::path(QLibraryInfo::TranslationsPath))
            .filePath(QStringLiteral("qtbase_%1.qm").arg(QLatin1String(language)));
    }

    void write(const QString &name, const QByteArray &contents) const
    {
        QFile file(_folder->filePath(name));
        if (!file.open(QIODevice::WriteOnly) || file.write(contents) != contents.size())
            qFatal("cannot write %s", qPrintable(name));
    }
    /// Gives the program a file for this language.
    void provide(const char *language) const
    {
        write(QStringLiteral("wuffer_%1.qm").arg(QLatin1String(language)),
              contentsOf(kPseudoLanguage));
    }
    [[nodiscard]] Translation::Folders folders() const { return {_folder->path(), {}}; }

    static inline const QString kPseudoLanguage = QStringLiteral(WUFFER_PSEUDO_LANGUAGE);
    static inline const QStringList kGerman{QStringLiteral("de-CH"), QStringLiteral("de")};
    std::unique_ptr<QTemporaryDir> _folder;

private Q_SLOTS:
    void init()
    {
        Test::init();
        _folder = std::make_unique<QTemporaryDir>();
    }
    static void cleanup()
    {
        QCOMPARE(own(), QStringLiteral("&New Timer"));
        QCOMPARE(ofQt(), QStringLiteral("Cancel"));
        QCOMPARE(QGuiApplication::layoutDirection(), Qt::LeftToRight);
    }
};

void tst_Translation::eachLanguageIsShipped()
{
    for (const char *each : {"de", "es", "fr", "it", "ja", "nl", "pl", "pt_BR"}) {
        const QString language = QString::fromLatin1(each);
        const Translation translation({language}, {});
        QCOMPARE(translation.language(), language);
        QVERIFY2(own() != QStringLiteral("&New Timer"), each);
        QVERIFY2(ofQt() != QStringLiteral("Cancel"), each);
    }
}

void tst_Translation::theLanguageOfTheUserIsShown()
{
    provide("de");
    const Translation translation(kGerman, folders());
    QCOMPARE(translation.language(), QStringLiteral("de"));
    QVERIFY2(own().startsWith(QStringLiteral("⟦&N")), qPrintable(own()));
}

void tst_Translation::theTextsOfQtAreInTheSameLanguage()
{
    provide("de");
    const Translation translation(kGerman, folders());
    QCOMPARE(ofQt(), QStringLiteral("Abbrechen"));
}

void tst_Translation::theFirstLanguageWithAFileIsShown()
{
    provide("fr");
    const Translation translation({QStringLiteral("he"), QStringLiteral("fr-CA")}, folders());
    QCOMPARE(translation.language(), QStringLiteral("fr"));
    QCOMPARE(ofQt(), QStringLiteral("Annuler"));
}

void tst_Translation::englishBeforeAnotherLanguageIsShown()
{
    provide("de");
    const Translation translation({QStringLiteral("en"), QStringLiteral("de")}, folders());
    QCOMPARE(translation.language(), QString());
    QCOMPARE(own(), QStringLiteral("&New Timer"));
    QCOMPARE(ofQt(), QStringLiteral("Cancel"));
}

void tst_Translation::withoutAFileTheTextsAreEnglish()
{
    const Translation translation(kGerman, folders());
    QCOMPARE(translation.language(), QString());
    QCOMPARE(ofQt(), QStringLiteral("Cancel"));
}

void tst_Translation::damages()
{
    QTest::addColumn<Damage>("damage");
    QTest::newRow("empty") << Damage([](QByteArray &contents) { contents.clear(); });
    QTest::newRow("no translation") << Damage([](QByteArray &contents) { contents = "Wuffer"; });
    QTest::newRow("truncated") << Damage([](QByteArray &contents) { contents.chop(100); });
    QTest::newRow("another mark") << Damage([](QByteArray &contents) { contents[0] = 'x'; });
    // After the mark, the language stands in a section of its own.
    QTest::newRow("flipped length") << Damage([](QByteArray &contents) { contents[19] = '\x40'; });
    // In the last entry of the table that leads to the messages.
    QTest::newRow("flipped position") << Damage([](QByteArray &contents) {
        const qsizetype language = 16 + 5 + contents[20];
        const auto entries = qFromBigEndian<quint32>(contents.constData() + language + 1);
        contents[language + 5 + qsizetype(entries) - 4] = '\x7F';
    });
}

void tst_Translation::aDamagedFileMeansEnglish()
{
    QFETCH(const Damage, damage);
    QByteArray contents = contentsOf(kPseudoLanguage);
    damage(contents);
    write(QStringLiteral("wuffer_de.qm"), contents);
    const Translation translation(kGerman, folders());
    QCOMPARE(translation.language(), QString());
    QCOMPARE(own(), QStringLiteral("&New Timer"));
    QCOMPARE(ofQt(), QStringLiteral("Cancel"));
}

void tst_Translation::withADamagedFileOfQtItsTextsAreEnglish()
{
    QFETCH(const Damage, damage);
    QByteArray contents = contentsOf(qtFile("de"));
    damage(contents);
    write(QStringLiteral("qtbase_de.qm"), contents);
    provide("de");
    const Translation translation(kGerman, {_folder->path(), _folder->path()});
    QCOMPARE(translation.language(), QStringLiteral("de"));
    QVERIFY(own() != QStringLiteral("&New Timer"));
    QCOMPARE(ofQt(), QStringLiteral("Cancel"));
}

void tst_Translation::somethingElseThanAFileMeansEnglish()
{
    const QString path = _folder->filePath(QStringLiteral("wuffer_de.qm"));
    QVERIFY(::mkfifo(QFile::encodeName(path).constData(), S_IRUSR | S_IWUSR) == 0);
    QCOMPARE(Translation(kGerman, folders()).language(), QString());
    QVERIFY(QFile::remove(path) && QDir().mkpath(path));
    QCOMPARE(Translation(kGerman, folders()).language(), QString());
}

void tst_Translation::withoutFilesOfQtItsTextsAreEnglish()
{
    provide("de");
    const Translation translation(kGerman, {_folder->path(), _folder->path()});
    QCOMPARE(translation.language(), QStringLiteral("de"));
    QCOMPARE(ofQt(), QStringLiteral("Cancel"));
}

void tst_Translation::withoutTheObjectTheTextsAreEnglish()
{
    provide("de");
    {
        const Translation translation(kGerman, folders());
        QVERIFY(own() != QStringLiteral("&New Timer"));
    }
    QCOMPARE(own(), QStringLiteral("&New Timer"));
    QCOMPARE(ofQt(), QStringLiteral("Cancel"));
}

void tst_Translation::numbersStayAsTheUserHasSetThem()
{
    provide("de");
    const QLocale before;
    const Translation translation(kGerman, folders());
    QCOMPARE(QLocale(), before);
    QCOMPARE(QLocale().decimalPoint(), before.decimalPoint());
}

void tst_Translation::aLanguageFromRightToLeftTurnsTheWindows()
{
    provide("he");
    const Translation translation({QStringLiteral("he")}, folders());
    QCOMPARE(translation.language(), QStringLiteral("he"));
    QCOMPARE(QGuiApplication::layoutDirection(), Qt::RightToLeft);
}

void tst_Translation::aReaderFromRightToLeftWhoSeesEnglishReadsFromLeftToRight()
{
    provide("de");
    const Translation translation({QStringLiteral("he"), QStringLiteral("en")}, folders());
    QCOMPARE(translation.language(), QString());
    QCOMPARE(QGuiApplication::layoutDirection(), Qt::LeftToRight);
}

WUFFER_TEST(tst_Translation)
#include "tst_Translation.moc"
