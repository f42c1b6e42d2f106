#include "preferences/SoundFileCheck.h"

#include "base/ClockTimer.h"
#include "base/Service.h"

#include <QEventLoop>
#include <QPointer>
#include <QWidget>

#include <algorithm>

namespace
{
/// How many seconds the user waits for a file.
constexpr double kPatience = 10;

/// After how many seconds the page shows that it waits. Most files answer sooner.
constexpr double kUnnoticed = 0.2;

/// Disables a page, for as long as this object lives, and then gives the focus back, unless the
/// user has turned to another page.
class BusyPage final
{
public:
    explicit BusyPage(QWidget &page) : _page(page), _focus(page.window()->focusWidget())
    {
        _page.setCursor(Qt::BusyCursor);
        _page.setEnabled(false);
    }
    ~BusyPage()
    {
        _page.setEnabled(true);
        _page.unsetCursor();
        if (_focus && _focus->isVisibleTo(_page.window()))
            _focus->setFocus();
    }
    Q_DISABLE_COPY_MOVE(BusyPage)

private:
    QWidget &_page;
    const QPointer<QWidget> _focus;
};
} // namespace

SoundFileCheck::SoundFileCheck(QWidget &page,
                               std::function<void(const Sound &)> turnedOutUnplayable) :
    _page(page),
    _turnedOutUnplayable(std::move(turnedOutUnplayable))
{}

SoundFileCheck::~SoundFileCheck() = default;

std::shared_ptr<const Sound> SoundFileCheck::open(const QString &path)
{
    const std::shared_ptr<Sound> sound =
        Service<SoundSystem>::current().soundWithContentsOfFile(path);
    await(sound);
    return sound;
}

std::shared_ptr<const Sound> SoundFileCheck::openPatiently(const QString &path)
{
    const std::shared_ptr<Sound> sound =
        Service<SoundSystem>::current().soundWithContentsOfFile(path);
    if (!isAwaited(path))
        wait(*sound);
    await(sound);
    return sound;
}

bool SoundFileCheck::isAwaited(const QString &path) const
{
    return std::ranges::any_of(_awaited, [&](const auto &each) { return each->name() == path; });
}

void SoundFileCheck::wait(Sound &sound) const
{
    if (sound.hasAnswered())
        return;
    QEventLoop loop;
    std::unique_ptr<BusyPage> busy;
    ClockTimer notice([&] {
        if (_page.isEnabled())
            busy = std::make_unique<BusyPage>(_page);
    });
    ClockTimer limit([&] { loop.quit(); });
    notice.startOnce(kUnnoticed);
    limit.startOnce(kPatience);
    sound.setWhenAnswered([&] { loop.quit(); });
    loop.exec();
    sound.setWhenAnswered({});
}

void SoundFileCheck::await(const std::shared_ptr<Sound> &sound)
{
    if (sound->hasAnswered() || isAwaited(sound->name()))
        return;
    sound->setWhenAnswered([this, path = sound->name()] { takeAnswer(path); });
    _awaited.push_back(sound);
}

void SoundFileCheck::takeAnswer(const QString &path)
{
    const auto found = std::ranges::find(_awaited, path, &Sound::name);
    const std::shared_ptr<Sound> sound = *found;
    _awaited.erase(found);
    if (sound->duration() == 0)
        _turnedOutUnplayable(*sound);
}
