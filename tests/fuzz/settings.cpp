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

/// What the program reads of a record: of one with the settings of a timer, and of one that holds
/// the places of windows, because either may lie under any key.
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

/// Everything that the program reads of its settings, as one text.
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

/// What a timer takes over and keeps again reads as the same.
void checkTimer(const UserDefaults &defaults)
{
    const auto settings = TimerSettings::fromRecord(defaults.value(Keys::kDefaultWufferSettings));
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
    const QByteArray aside = contentsOf(path + QStringLiteral(".unreadable"));
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
