#pragma once

#include "timer/TimerHost.h"

#include <QApplication>

#include <memory>
#include <optional>
#include <vector>

/// The application object: the registry of open timers, and the filter that lets the first key
/// press or click end full-screen mode and do nothing else. It owns the timers while their windows
/// are open.
class WufferApplication final : public QApplication, public TimerHost
{
    Q_OBJECT

public:
    WufferApplication(int &argc, char **argv);
    ~WufferApplication() override;

    /// The one application object.
    [[nodiscard]] static WufferApplication &instance();

    /// The open timers in the order in which they were made, the newest last. A list of its own:
    /// timers may come and go while it is walked.
    [[nodiscard]] static std::vector<Wuffer *> getWuffers();

    /// Another timer window whose frame has exactly the same origin as this one's, the oldest
    /// first; null when there is none.
    [[nodiscard]] static WufferWindow *otherWufferWindowSharesOrigin(const QWidget &window);

    [[nodiscard]] WufferWindow *windowSharingOrigin(const QWidget &window) const override
    {
        return otherWufferWindowSharesOrigin(window);
    }

    /// The timer of the active window, or of the sheet on it; null when another is active.
    [[nodiscard]] static Wuffer *keyWuffer();

    /// Makes a new timer, not yet shown.
    Wuffer &openWuffer();

    /// Ends full-screen mode of every timer. True when at least one was in it.
    bool cancelFullScreenMode();

    /// Ends full-screen mode of every timer but this one. True when another was in it.
    bool cancelFullScreenModeForOthers(const Wuffer &timer) override;

    /// Whether the program is about to end.
    [[nodiscard]] static bool isQuitting() { return instance()._quitting; }

    bool notify(QObject *receiver, QEvent *event) override;

Q_SIGNALS:
    /// One of the windows of the program, of whatever kind, has come up.
    void windowShown(QWidget *window);
    /// One has gone, or is being closed; menus and tool tips do not count.
    void windowHidden();
    /// The window system has begun to show some window, or another part of it, or has ended it.
    void windowExposed();
    /// A timer was made.
    void wufferOpened(Wuffer *timer);
    /// The user of a timer wants to read this page of the help; an unknown name means the first.
    void helpRequested(const QString &page);
    /// The user wants to choose which timer this one starts, in a list below the button.
    void targetsRequested(Wuffer *timer, QWidget *button);

private:
    void tellOfWindow(QObject &receiver, const QEvent &event);
    [[nodiscard]] bool swallows(QEvent &event);
    [[nodiscard]] bool swallowsKey(QEvent &event);
    void forget(Wuffer &timer);

    std::vector<std::unique_ptr<Wuffer>> _wuffers;
    /// The key that has ended full-screen mode, until it is let go or pressed anew.
    std::optional<int> _swallowedKey;
    bool _quitting = false;
};
