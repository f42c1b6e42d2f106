#include "rules/Language.h"
#include "support/TestMain.h"

/// Which language the program shows.
class tst_Language final : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void itIsTheFirstThatIsEnglishOrAvailable_data();
    void itIsTheFirstThatIsEnglishOrAvailable();
};

void tst_Language::itIsTheFirstThatIsEnglishOrAvailable_data()
{
    QTest::addColumn<QString>("wanted");
    QTest::addColumn<QString>("language");
    const auto add = [](const char *row, const char *wanted, const char *language) {
        QTest::newRow(row) << QString::fromLatin1(wanted) << QString::fromLatin1(language);
    };
    add("none", "", "");
    add("a language", "de", "de");
    add("of a country", "de_DE", "de");
    add("of another country", "de-CH de-Latn-CH", "de");
    add("with a country of its own", "pt-BR pt-Latn-BR pt", "pt_BR");
    add("of another country than the file", "pt-PT pt-Latn-PT", "pt_BR");
    add("without a country", "pt", "pt_BR");
    add("with an encoding", "de_DE.UTF-8@euro", "de");
    add("English", "en", "");
    add("British", "en-GB", "");
    add("none chosen", "C", "");
    add("none chosen, by its other name", "POSIX", "");
    add("English before German", "en de", "");
    add("German before English", "de en", "de");
    add("the first is unknown", "he-IL he-Hebr-IL he fr-FR", "fr");
    add("the first is unknown and the second English", "zh_TW en_US de", "");
    add("all unknown", "he zh", "");
    add("beginning like another", "fry_NL den", "");
}

void tst_Language::itIsTheFirstThatIsEnglishOrAvailable()
{
    QFETCH(const QString, wanted);
    QFETCH(const QString, language);
    const QStringList available{QStringLiteral("de"), QStringLiteral("fr"),
                                QStringLiteral("pt_BR")};
    QCOMPARE(Language::chosen(wanted.split(QLatin1Char(' '), Qt::SkipEmptyParts), available),
             language);
}

WUFFER_TEST(tst_Language, WithoutApplication)
#include "tst_Language.moc"
