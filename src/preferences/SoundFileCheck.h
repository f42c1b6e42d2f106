#pragma once

#include "base/Sound.h"

#include <functional>
#include <memory>
#include <vector>

class QWidget;

/// Finds out whether sound files can be played, without holding up the program: files on a slow
/// disk answer late, and those on a server that is gone never do. A file that has not answered is
/// not known to be unplayable. Main thread.
class SoundFileCheck final
{
public:
    /// The function is called when a file turns out to be unplayable after all. The page is
    /// disabled while the user waits for a file; it must outlive this object.
    SoundFileCheck(QWidget &page, std::function<void(const Sound &)> turnedOutUnplayable);
    Q_DISABLE_COPY_MOVE(SoundFileCheck)
    ~SoundFileCheck();

    /// Opens the file at the path. Returns its sound, which may not have answered yet; then it is
    /// also waited for in the background.
    [[nodiscard]] std::shared_ptr<const Sound> open(const QString &path);

    /// The same, but first waits for the file in an event loop, for at most ten seconds. A file
    /// that is waited for in the background already is not waited for here.
    [[nodiscard]] std::shared_ptr<const Sound> openPatiently(const QString &path);

private:
    [[nodiscard]] bool isAwaited(const QString &path) const;
    void wait(Sound &sound) const;
    void await(const std::shared_ptr<Sound> &sound);
    void takeAnswer(const QString &path);

    QWidget &_page;
    const std::function<void(const Sound &)> _turnedOutUnplayable;
    /// Sounds that have not answered yet, one for each path.
    std::vector<std::shared_ptr<Sound>> _awaited;
};
