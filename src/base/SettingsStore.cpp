#include "base/SettingsStore.h"

#include "base/JsonSettingsFormat.h"
#include "base/RegularFile.h"
#include "base/SettingsLeftovers.h"
#include "base/SettingsPath.h"
#include "base/WriterLock.h"

#include <QDeadlineTimer>
#include <QFileInfo>
#include <QSaveFile>

#include <chrono>
#include <thread>
#include <utility>

using namespace std::chrono_literals;

namespace
{
/// Another process writes for some milliseconds, or for seconds to a slow disk.
constexpr std::chrono::milliseconds kLongestWait = 3s;
constexpr auto kPause = 50ms;
constexpr auto kLongestWaitAtEnd = 500ms;
constexpr auto kPauseAtEnd = 10ms;

bool replaceFile(const QString &path, const QByteArray &text)
{
    QSaveFile file(path);
    // What a full disk does not take out of a buffer, QSaveFile would not notice.
    if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered))
        return false;
    // The names of timers and the paths of sounds are private.
    file.setPermissions(QFileDevice::ReadOwner | QFileDevice::WriteOwner);
    return file.write(text) == text.size() && file.commit();
}
} // namespace

SettingsStore::SettingsStore(const QString &path) : _path(SettingsPath::cleared(path))
{
    connect(this, &SettingsStore::changed, this, &SettingsStore::synchronize, Qt::QueuedConnection);
    _tryAgain.setSingleShot(true);
    _tryAgain.callOnTimeout([this] { synchronize(); });
    SettingsLeftovers::remove(_path);
    read();
}

SettingsStore::~SettingsStore()
{
    if (_changes.isEmpty())
        return;
    WriterLock lock(SettingsPath::fileAt(_path));
    const QDeadlineTimer end(kLongestWaitAtEnd);
    while (!lock.tryLock() && !end.hasExpired())
        std::this_thread::sleep_for(kPauseAtEnd);
    write();
}

QVariant SettingsStore::value(const QString &key) const
{
    const auto change = _changes.constFind(key);
    return change == _changes.cend() ? _stored.value(key) : change->value_or(QVariant());
}

void SettingsStore::setValue(const QString &key, const QVariant &value)
{
    change(key, value);
}

void SettingsStore::remove(const QString &key)
{
    if (_stored.contains(key))
        change(key, std::nullopt);
    else
        _changes.remove(key);
}

void SettingsStore::change(const QString &key, const std::optional<QVariant> &value)
{
    _changes.insert(key, value);
    SettingsPath::makePrivateFolder(QFileInfo(_path).path());
    if (!std::exchange(_isWrittenSoon, true))
        Q_EMIT changed();
}

void SettingsStore::synchronize()
{
    _isWrittenSoon = false;
    if (_changes.isEmpty()) {
        read();
        return;
    }
    WriterLock lock(SettingsPath::fileAt(_path));
    if (!lock.tryLock() && mayWait())
        _tryAgain.start(kPause);
    else
        write();
}

bool SettingsStore::mayWait()
{
    if (!_waiting.isValid())
        _waiting.start();
    return !_waiting.hasExpired(kLongestWait.count());
}

/// Returns whether the settings are now those in the file.
bool SettingsStore::read()
{
    RegularFile file(_path, RegularFile::Access::Read);
    if (file.isMissing())
        return take(QByteArray());
    if (!file.isOpen())
        return false;
    const std::optional<QByteArray> text = SettingsPath::textOf(*file.takeDevice());
    return take(text);
}

bool SettingsStore::take(const std::optional<QByteArray> &text)
{
    if (text == _text)
        return true;
    const auto settings = text ? JsonSettingsFormat::settingsIn(*text) : std::nullopt;
    if (!settings && !SettingsPath::setAside(_path))
        return false;
    _text = settings ? *text : QByteArray();
    _stored = settings.value_or(QVariantMap());
    return true;
}

/// Writes the changes, unless the file can be neither written nor replaced without losing data.
void SettingsStore::write()
{
    _tryAgain.stop();
    _waiting.invalidate();
    if (!SettingsPath::isWritable(_path) || !read())
        return;
    const QVariantMap settings = merged();
    const QByteArray text = JsonSettingsFormat::textOf(settings);
    if (!replaceFile(_path, text))
        return;
    _text = text;
    _stored = settings;
    _changes.clear();
}

QVariantMap SettingsStore::merged() const
{
    QVariantMap settings = _stored;
    for (auto change = _changes.cbegin(); change != _changes.cend(); ++change) {
        if (*change)
            settings.insert(change.key(), **change);
        else
            settings.remove(change.key());
    }
    return settings;
}
