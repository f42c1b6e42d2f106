#include "support/Fakes.h"

#include <QFile>

#include <algorithm>
#include <limits>
#include <utility>

FakeSound::FakeSound(FakeSoundSystem &system, QString name, double duration) :
    _system(system), _name(std::move(name)), _duration(duration)
{
    _system._sounds.push_back(this);
    _system._diary << QStringLiteral("make ") + _name;
}

FakeSound::~FakeSound()
{
    if (_playing)
        _system._diary << QStringLiteral("destroy ") + _name;
    std::erase(_system._sounds, this);
}

bool FakeSound::isMissing() const
{
    return _duration == 0 && !QFile::exists(_name);
}

void FakeSound::setWhenAnswered(std::function<void()> function)
{
    if (!hasAnswered())
        _whenAnswered = std::move(function);
}

void FakeSound::answer(double duration)
{
    _duration = duration;
    // Last, because the function may destroy this sound.
    if (const auto whenAnswered = std::exchange(_whenAnswered, {}))
        whenAnswered();
}

void FakeSound::play()
{
    Q_ASSERT_X(_duration > 0, "FakeSound", "a sound without a duration cannot be played");
    _playing = true;
    _system.whenPlayed();
    _system._diary << QStringLiteral("play %1 at %2").arg(_name).arg(static_cast<double>(_volume));
}

void FakeSound::stop()
{
    if (_playing)
        _system._diary << QStringLiteral("stop ") + _name;
    _playing = false;
}

std::unique_ptr<Sound> FakeSoundSystem::soundNamed(const QString &fileName)
{
    return opensFiles ? make(fileName, 2.5) : nullptr;
}

std::unique_ptr<Sound> FakeSoundSystem::soundWithContentsOfFile(const QString &path)
{
    if (_heldFiles.contains(path))
        return make(path, std::numeric_limits<double>::infinity());
    return make(path, opensFiles ? _fileDurations.value(path, 0.0) : 0.0);
}

void FakeSoundSystem::answer(const QString &path, double seconds)
{
    _heldFiles.remove(path);
    setFileDuration(path, seconds);
    // Each answer may make and destroy sounds.
    const auto waits = [&](const FakeSound *sound) {
        return sound->name() == path && !sound->hasAnswered();
    };
    auto next = std::ranges::find_if(_sounds, waits);
    while (next != _sounds.end()) {
        (*next)->answer(seconds);
        next = std::ranges::find_if(_sounds, waits);
    }
}

FakeSound *FakeSoundSystem::sound(const QString &name) const
{
    const auto found = std::find_if(_sounds.rbegin(), _sounds.rend(),
                                    [&](const FakeSound *sound) { return sound->name() == name; });
    return found == _sounds.rend() ? nullptr : *found;
}

bool FakeSoundSystem::isPlaying(const QString &name) const
{
    return std::ranges::any_of(_sounds, [&](const FakeSound *sound) {
        return sound->name() == name && sound->isPlaying();
    });
}

QStringList FakeSoundSystem::diary(const QString &beginning) const
{
    QStringList lines;
    std::ranges::copy_if(_diary, std::back_inserter(lines),
                         [&](const QString &line) { return line.startsWith(beginning); });
    return lines;
}

std::unique_ptr<Sound> FakeSoundSystem::make(const QString &name, double duration)
{
    return std::make_unique<FakeSound>(*this, name, duration);
}

void FakeSoundSystem::endAll()
{
    for (FakeSound *sound : _sounds)
        sound->reachEnd();
}

std::optional<QUrl> FakeOpenPanel::runModal(QWidget &window, const QString &title)
{
    titles << title;
    lastWindow = &window;
    if (_choices.empty())
        return std::nullopt;
    const QUrl choice = _choices.front();
    _choices.erase(_choices.begin());
    return choice;
}
