#pragma once

#include "app/ReadableTheme.h"
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

    /// The open timers in the order in which they were made, the newest last. The list is a copy:
    /// timers may open and close while the caller iterates over it.
    [[nodiscard]] static std::vector<Wuffer *> getWuffers();

    /// The oldest other timer window whose frame has exactly the same origin as this one's; null
    /// when there is none.
    [[nodiscard]] static WufferWindow *otherWufferWindowSharesOrigin(const QWidget &window);

    [[nodiscard]] WufferWindow *windowSharingOrigin(const QWidget &window) const override
    {
        return otherWufferWindowSharesOrigin(window);
    }

    /// The timer whose window, or the sheet on it, is active; null when another window is.
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
    /// A window of the program, of any kind, was shown.
    void windowShown(QWidget *window);
    /// A window was hidden or is being closed; menus and tool tips do not count.
    void windowHidden();
    /// The window system has exposed a window or another part of it, or no longer shows it.
    void windowExposed();
    /// A timer was made.
    void wufferOpened(Wuffer *timer);
    /// The user asks in a timer's window for this page of the help; an unknown name means the
    /// first page.
    void helpRequested(const QString &page);
    /// The user asks for the list, below the button, to choose which timer this one starts.
    void targetsRequested(Wuffer *timer, QWidget *button);

protected:
    bool event(QEvent *event) override;

private:
    void emitWindowSignal(QObject &receiver, const QEvent &event);
    [[nodiscard]] bool swallows(QEvent &event);
    [[nodiscard]] bool swallowsKey(QEvent &event);
    void forget(Wuffer &timer);

    ReadableTheme _theme;
    std::vector<std::unique_ptr<Wuffer>> _wuffers;
    /// The key that ended full-screen mode, until it is released or pressed again.
    std::optional<int> _swallowedKey;
    bool _quitting = false;
};
