#include "rules/TranslationFile.h"
#include "support/TestMain.h"

#include <QDir>
#include <QFile>
#include <QLibraryInfo>
#include <QTranslator>

/// Which files of translations QTranslator can read without harm.
class tst_TranslationFile final : public Test
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void aCompiledFileIsSound();
    void theFilesOfQtAreSound();
    void anEmptyFileIsNot();
    void otherFilesAreNot();
    void aTruncatedFileIsNot();
    void aFileWithMoreAtItsEndIsNot();
    void aFileThatNeedsOthersIsNot();
    void aMessageThatEndsOutsideIsNot();
    void noFlippedBitHarms();

private:
    static bool isSound(const QByteArray &contents)
    {
        return TranslationFile::isSound(
            {reinterpret_cast<const uchar *>(contents.constData()), std::size_t(contents.size())});
    }
    static QByteArray contentsOf(const QString &path)
    {
        QFile file(path);
        if (!file.open(QIODevice::ReadOnly))
            qFatal("cannot read %s", qPrintable(path));
        return file.readAll();
    }

    QByteArray _contents;
};

void tst_TranslationFile::initTestCase()
{
    _contents = contentsOf(QStringLiteral(WUFFER_PSEUDO_LANGUAGE));
}

void tst_TranslationFile::aCompiledFileIsSound()
{
    QVERIFY(isSound(_contents));
}

void tst_TranslationFile::theFilesOfQtAreSound()
{
    const QDir folder(QLibraryInfo::path(QLibraryInfo::TranslationsPath));
    for (const char *language : {"de", "es", "fr", "it", "ja", "nl", "pl", "pt_BR", "he", "ru"}) {
        const QString name = QStringLiteral("qtbase_%1.qm").arg(QLatin1String(language));
        QVERIFY2(isSound(contentsOf(folder.filePath(name))), language);
    }
}

void tst_TranslationFile::anEmptyFileIsNot()
{
    QVERIFY(!isSound({}));
    const QByteArray onlyItsMark = _contents.first(16);
    QVERIFY(!isSound(onlyItsMark));
}

void tst_TranslationFile::otherFilesAreNot()
{
    QVERIFY(!isSound(QByteArray("Wuffer")));
    QVERIFY(!isSound(QByteArray(100'000, '\0')));
    QVERIFY(!isSound(QByteArray(100'000, '\x42')));
}

void tst_TranslationFile::aTruncatedFileIsNot()
{
    // Without the last section, the rules for plural forms, a file is that of a language without
    // any.
    constexpr qsizetype lastSection = 7;
    for (qsizetype length = 0; length < _contents.size(); ++length)
        QVERIFY2(length == _contents.size() - lastSection || !isSound(_contents.first(length)),
                 qPrintable(QString::number(length)));
}

void tst_TranslationFile::aFileWithMoreAtItsEndIsNot()
{
    QVERIFY(!isSound(_contents + 'x'));
    QVERIFY(!isSound(_contents + QByteArray(5, '\0')));
}

void tst_TranslationFile::aFileThatNeedsOthersIsNot()
{
    const QByteArray dependencies("\x96\0\0\0\x02xx", 7);
    QVERIFY(!isSound(_contents + dependencies));
}

void tst_TranslationFile::aMessageThatEndsOutsideIsNot()
{
    const QByteArray mark = _contents.first(16);
    const QByteArray hashes("\x42\0\0\0\x08hash\0\0\0\0", 13);
    const QByteArray sound = hashes + QByteArray("\x69\0\0\0\x08\x03\0\0\0\x02\0x\x01", 13);
    QVERIFY(isSound(mark + sound));
    const QByteArray tooLong = hashes + QByteArray("\x69\0\0\0\x08\x03\0\0\0\x04\0x\x01", 13);
    QVERIFY(!isSound(mark + tooLong));
    const QByteArray withoutEnd = hashes + QByteArray("\x69\0\0\0\x07\x03\0\0\0\x02\0x", 12);
    QVERIFY(!isSound(mark + withoutEnd));
    const QByteArray elsewhere =
        QByteArray("\x42\0\0\0\x08hash\0\0\0\x08", 13) + sound.sliced(hashes.size());
    QVERIFY(!isSound(mark + elsewhere));
}

void tst_TranslationFile::noFlippedBitHarms()
{
    // Each bit of a byte and each byte of a number has its turn.
    constexpr qsizetype step = 11;
    int sound = 0;
    for (qsizetype place = 0; place < _contents.size(); place += step) {
        QByteArray damaged = _contents;
        damaged[place] = char(damaged[place] ^ (1 << (place % 8)));
        if (!isSound(damaged))
            continue;
        ++sound;
        QTranslator translator;
        if (translator.load(reinterpret_cast<const uchar *>(damaged.constData()),
                            int(damaged.size()))) {
            Q_UNUSED(translator.translate("MainMenu", "&New Timer"));
            Q_UNUSED(translator.translate("GatheredNotifications", "%n timers have ended", "", 5));
            Q_UNUSED(translator.translate("Nowhere", "Nothing", "of the kind"));
        }
    }
    // A flipped bit in a text only spoils the text.
    QVERIFY(sound > 0 && sound < _contents.size() / step);
}

WUFFER_TEST(tst_TranslationFile, WithoutWindows)
#include "tst_TranslationFile.moc"
