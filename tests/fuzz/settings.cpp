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
const QString kChanged = QStringLiteral("a key of the fuzzer's");

QString textOf(bool value)
{
    return QString::number(value);
}

QString textOf(qint32 value)
{
    return QString::number(value);
}

QString textOf(float value)
{
    return QString::number(value);
}

QString textOf(const QString &value)
{
    return value;
}

QString textOf(const QStringList &value)
{
    return value.join(QLatin1Char('\n'));
}

template<class Value> QString textOf(const std::optional<Value> &value)
{
    return value ? textOf(*value) : QStringLiteral("none");
}

/// All values that the program reads from a record, as one text. Reads it both as the settings of a
/// timer and as places of windows, because a file may hold either under any key.
QString textOf(const QVariantMap &record)
{
    QStringList all{Preset::text(TimerSettings::fromRecord(record))};
    for (const QVariant &member : record) {
        const QPoint place =
            WindowPlace::fromRecord(PropertyList::dictionaryFrom(member)).value_or(QPoint());
        all << textOf(place.x()) << textOf(place.y());
    }
    for (const AnySettingsKey &each : TimerKeys::kAll)
        std::visit([&](const auto &key) { all << textOf(PropertyList::valueIn(record, key)); },
                   each);
    return textOf(all);
}

/// Everything that the program reads from its settings, as one text.
QString everythingIn(const UserDefaults &defaults)
{
    QStringList all;
    for (const AnySettingsKey &each : Keys::kAll) {
        std::visit(
            [&](const auto &key) {
                all << textOf(defaults.value(key)) << textOf(defaults.integerForKey(key.text()));
            },
            each);
    }
    for (const int number : Preset::kNumbers)
        all << textOf(defaults.dictionaryForKey(Preset::key(quint32(number))));
    return textOf(all);
}

QByteArray contentsOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// Checks that the settings of a timer survive being stored and read again.
void checkTimer(const UserDefaults &defaults)
{
    const auto settings = TimerSettings::fromRecord(defaults.value(Keys::kDefaultWufferSettings));
    const QVariantMap record = settings.record();
    check(TimerSettings::fromRecord(record).record() == record, "a record reads as it was stored");
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
    const QByteArray aside = contentsOf(path + QStringLiteral(".unreadable"));
    check(aside.isEmpty() || aside == text, "the file set aside is the file that was there");
    const UserDefaults again(path);
    check(again.integerForKey(kChanged) == 7, "a change is kept");
    check(everythingIn(again) == before, "the written settings read as before");
}
} // namespace

extern "C" int LLVMFuzzerTestOneInput(const quint8 *data, std::size_t size)
{
    // In memory, and in a new folder each time, because a file may be set aside.
    static const QTemporaryDir folder(QStringLiteral("/dev/shm/fuzz-XXXXXX"));
    static quint64 count = 0;
    const QString own = folder.filePath(QString::number(++count));
    check(QDir().mkdir(own), "the folder can be made");
    const QByteArray text(reinterpret_cast<const char *>(data), qsizetype(size));
    const QString path = own + QStringLiteral("/s.json");
    QFile file(path);
    check(file.open(QIODevice::WriteOnly) && file.write(text) == text.size(),
          "the file can be written");
    file.close();
    checkFile(path, text);
    QDir(own).removeRecursively();
    return 0;
}
