#include "rules/SoundEntries.h"
#include "support/TestMain.h"

class tst_SoundEntries final : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void aRowHasTheTextAndTheFileOfAnEntry_data();
    void aRowHasTheTextAndTheFileOfAnEntry();
    void thePathOfAFileIsNotAFixedEntry();
};

void tst_SoundEntries::aRowHasTheTextAndTheFileOfAnEntry_data()
{
    QTest::addColumn<SoundEntry>("entry");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("file");
    const auto add = [](SoundEntry entry, const char *text, const char *file) {
        QTest::newRow(text) << entry << QString::fromLatin1(text) << QString::fromLatin1(file);
    };
    add(SoundEntry::Wuff, "Wuff (Default)", "wolvesWuff.wav");
    add(SoundEntry::Crow, "Crow (Default)", "crow.wav");
    add(SoundEntry::SelectAnother, "Select another sound...", "");
    add(SoundEntry::ClearCustom, "Clear custom sounds", "");
    add(SoundEntry::Manage, "Manage Sounds...", "");
}

void tst_SoundEntries::aRowHasTheTextAndTheFileOfAnEntry()
{
    QFETCH(const SoundEntry, entry);
    QFETCH(const QString, text);
    QCOMPARE(SoundEntries::row(entry).stored.toString(), text);
    QCOMPARE(SoundEntries::shownText(entry), text);
    QVERIFY(SoundEntries::fromStored(text) == entry);
    QTEST(SoundEntries::row(entry).fileName.toString(), "file");
    QTEST(SoundEntries::builtInFile(text), "file");
}

void tst_SoundEntries::thePathOfAFileIsNotAFixedEntry()
{
    for (const char16_t *path : {u"", u"/tmp/Wuff (Default)", u"crow.wav"}) {
        QVERIFY(!SoundEntries::fromStored(path));
        QCOMPARE(SoundEntries::builtInFile(path), QString());
    }
}

WUFFER_TEST(tst_SoundEntries)
#include "tst_SoundEntries.moc"
