#include "app/StatusPresenter.h"

#include "app/RunningTimersMenu.h"
#include "app/StatusDescription.h"
#include "app/WufferApplication.h"
#include "base/UserDefaults.h"
#include "platform/StatusItem.h"
#include "timer/Wuffer.h"

static QIcon statusIcon()
{
    QIcon icon;
    for (const int size : {22, 24, 32, 44, 48, 64})
        icon.addFile(QStringLiteral(":/images/status_icon-%1.png").arg(size), QSize(size, size));
    return icon;
}

StatusPresenter::StatusPresenter(StatusItem &item) : _statusItem(item) {}

StatusPresenter::~StatusPresenter()
{
    removeStatusBar();
    _statusItem.setMenu(nullptr);
    _statusItem.setTarget(nullptr, {});
}

void StatusPresenter::refreshStatusItem()
{
    if (UserDefaults::standardUserDefaults().value(Keys::kNoStatusBar)) {
        removeStatusBar();
        return;
    }
    const auto running = RunningTimers::among(WufferApplication::getWuffers());
    const auto description = StatusDescription<Wuffer>::of(running);
    Wuffer *first = description.target;
    if (first) {
        _statusItem.setAttributedTitle(description.title);
        if (_statusItem.image().isNull())
            _statusItem.setImage(statusIcon());
    } else {
        removeStatusBar();
    }
    if (_statusItem.target() != first)
        _statusItem.setTarget(first, [first] { first->showWufferWindow(); });
    showMenu(running, description.hasMenu);
}

void StatusPresenter::showMenu(const std::vector<RunningTimers::Running<Wuffer>> &running,
                               bool hasMenu)
{
    if (!hasMenu) {
        if (_statusItem.menu()) {
            _statusItem.setMenu(nullptr);
            _statusMenu->setTimers({});
        }
        return;
    }
    if (!_statusMenu)
        _statusMenu = std::make_unique<RunningTimersMenu>();
    _statusMenu->setTimers(running);
    _statusItem.setMenu(_statusMenu.get());
}

void StatusPresenter::removeStatusBar()
{
    _statusItem.setImage({});
    _statusItem.setTitle({});
}
