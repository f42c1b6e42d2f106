#pragma once

#include <QtGlobal>

#include <functional>
#include <optional>
#include <utility>

/// What the program's icon in the panel or dock shows besides itself.
struct LauncherState
{
    /// How much is done, in whole percents from 0 to 100; nothing for no bar.
    std::optional<int> percent;
    /// Whether the icon asks for attention.
    bool urgent = false;

    [[nodiscard]] friend bool operator==(const LauncherState &, const LauncherState &) = default;
};

/// The program's icon in the panel or dock. Main thread.
class LauncherEntry
{
public:
    LauncherEntry() = default;
    virtual ~LauncherEntry() = default;
    Q_DISABLE_COPY_MOVE(LauncherEntry)

    /// Whether a panel or dock shows states. If not, a call of show() is wasted. The first call
    /// only begins to look for one.
    [[nodiscard]] virtual bool isRead() = 0;

    /// Shows the state, at most about once a second; of several in between the latest counts.
    virtual void show(const LauncherState &state) = 0;

    /// Sets what is called when isRead() has become true.
    void setReadHandler(std::function<void()> handler) { _read = std::move(handler); }

protected:
    /// Tells that isRead() has become true.
    void becomeRead() const
    {
        if (_read)
            _read();
    }

private:
    std::function<void()> _read;
};
