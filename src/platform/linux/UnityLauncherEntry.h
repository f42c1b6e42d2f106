#pragma once

#include "base/ClockTimer.h"
#include "platform/LauncherEntry.h"
#include "platform/linux/BusNameWatch.h"

/// Launcher entries by the interface com.canonical.Unity.LauncherEntry, which Plasma and docks for
/// GNOME read. Such a reader owns the bus name com.canonical.Unity, so nothing is sent while that
/// has no owner. https://wiki.ubuntu.com/Unity/LauncherAPI
class UnityLauncherEntry final : public QObject, public LauncherEntry
{
    Q_OBJECT

public:
    [[nodiscard]] bool isRead() override;
    void show(const LauncherState &state) override;

private:
    void lookForReader();
    void askForReader();
    void setRead(bool read);
    void send();

    BusNameWatch _watch;
    bool _isLooking = false;
    bool _isRead = false;
    LauncherState _state;
    /// What the readers show; a new one shows nothing.
    LauncherState _sent;
    /// Runs for a second after each message.
    ClockTimer _pause{[this] { send(); }};
};
