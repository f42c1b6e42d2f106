#include "base/UserDefaults.h"
#include "rules/Preset.h"
#include "rules/TimerSettings.h"
#include "rules/WindowPlace.h"
#include "tests/fuzz/Check.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

namespace
{
const QString kTimer = QStringLiteral("defaultWufferSettings");
const QString kPlaces = QStringLiteral("windowFrames");
const QString kChanged = QStringLiteral("a key of the fuzzer's");

/// Everything that the program reads of its settings, as one text.
QString everythingIn(const UserDefaults &defaults)
{
    QStringList all;
    for (const char *key : {"finishedText", "launchBehavior", "alarmPath", "beepPath"})
        all += defaults.stringForKey(QString::fromLatin1(key)).value_or(QStringLiteral("none"));
    for (const char *key : {"soundOff", "growlDisabled", "noStatusBar", "milliliters"}) {
        all += QString::number(defaults.integerForKey(QString::fromLatin1(key)));
        all += QString::number(defaults.floatForKey(QString::fromLatin1(key)));
        all += QString::number(defaults.boolForKey(QString::fromLatin1(key)));
    }
    all += defaults.stringArrayForKey(QStringLiteral("soundHistory"));
    for (const QVariant &place : defaults.dictionaryForKey(kPlaces)) {
        const QPoint point = WindowPlace::fromRecord(place.toMap()).value_or(QPoint());
        all += QString::number(point.x()) + QLatin1Char(',') + QString::number(point.y());
    }
    for (const int number : Preset::kNumbers) {
        const QVariantMap record = defaults.dictionaryForKey(Preset::key(quint32(number)));
        all += Preset::text(TimerSettings::fromRecord(record));
    }
    all += Preset::text(TimerSettings::fromRecord(defaults.dictionaryForKey(kTimer)));
    return all.join(QLatin1Char('\n'));
}

QByteArray textOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// What a timer takes over and keeps again reads as the same.
void checkTimer(const UserDefaults &defaults)
{
    const auto settings = TimerSettings::fromRecord(defaults.dictionaryForKey(kTimer));
    const QVariantMap record = settings.record();
    check(TimerSettings::fromRecord(record).record() == record, "a record reads as it was kept");
}

void checkFile(const QString &path, const QByteArray &text)
{
    QString before;
    {
        UserDefaults defaults(path);
        before = everythingIn(defaults);
        checkTimer(defaults);
        defaults.setObject(7, kChanged);
        defaults.synchronize();
        check(everythingIn(defaults) == before, "writing changes nothing else");
    }
    const QByteArray aside = textOf(path + QStringLiteral(".unreadable"));
    check(aside.isEmpty() || aside == text, "what is set aside is what was there");
    const UserDefaults again(path);
    check(again.integerForKey(kChanged) == 7, "a change is kept");
    check(everythingIn(again) == before, "what was written reads as it was");
}
} // namespace

extern "C" int LLVMFuzzerTestOneInput(const quint8 *data, std::size_t size)
{
    // In memory, and each under a name of its own: QSettings remembers files by their names.
    static const QTemporaryDir folder(QStringLiteral("/dev/shm/fuzz-XXXXXX"));
    static quint64 count = 0;
    const QString own = folder.filePath(QString::number(++count));
    check(QDir().mkdir(own), "there is a folder");
    const QByteArray text(reinterpret_cast<const char *>(data), qsizetype(size));
    const QString path = own + QStringLiteral("/s.json");
    QFile file(path);
    check(file.open(QIODevice::WriteOnly) && file.write(text) == text.size(), "there is a file");
    file.close();
    checkFile(path, text);
    QDir(own).removeRecursively();
    return 0;
}
