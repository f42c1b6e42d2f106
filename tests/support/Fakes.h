#pragma once

#include "base/Desktop.h"
#include "base/DesktopNotifications.h"
#include "base/OpenPanel.h"
#include "base/ScreenBlanking.h"
#include "base/Sound.h"
#include "platform/LauncherEntry.h"
#include "platform/StatusItem.h"

#include <QHash>
#include <QSet>
#include <QStringList>
#include <QUrl>

#include <functional>
#include <vector>

class FakeSoundSystem;

/// A sound that plays silently until the test ends it. A sound that loops ends only with stop().
class FakeSound final : public Sound
{
public:
    FakeSound(FakeSoundSystem &system, QString name, double duration);
    ~FakeSound() override;

    [[nodiscard]] QString name() const override { return _name; }
    [[nodiscard]] double duration() const override { return _duration; }
    [[nodiscard]] bool isMissing() const override;
    void setWhenAnswered(std::function<void()> function) override;
    void keep(std::unique_ptr<Sound> last) override { _kept = std::move(last); }
    [[nodiscard]] std::unique_ptr<Sound> takeKept() override { return std::move(_kept); }
    void setStandIn(const QString &fileName) override { _standIn = fileName; }
    void play() override;
    void stop() override;
    [[nodiscard]] bool isPlaying() const override { return _playing; }
    [[nodiscard]] float volume() const override { return _volume; }
    void setVolume(float volume) override { _volume = volume; }
    void setLoops(bool loops) override { _loops = loops; }

    [[nodiscard]] QString standIn() const { return _standIn; }
    [[nodiscard]] bool loops() const { return _loops; }
    /// Lets the sound reach its end, if it is playing.
    void reachEnd() { _playing = _playing && _loops; }
    /// Lets a file that has not answered yet answer with its duration.
    void answer(double duration);

private:
    FakeSoundSystem &_system;
    QString _name;
    QString _standIn;
    double _duration;
    bool _playing = false;
    bool _loops = false;
    float _volume = 1.0F;
    std::function<void()> _whenAnswered;
    std::unique_ptr<Sound> _kept;
};

/// Keeps a diary of every sound: "make crow.wav", "play crow.wav at 0.03", "stop crow.wav" (only
/// when it was playing), "destroy crow.wav" (likewise).
class FakeSoundSystem final : public SoundSystem
{
public:
    [[nodiscard]] std::unique_ptr<Sound> soundNamed(const QString &fileName) override;
    [[nodiscard]] bool canOpenFiles() override { return opensFiles; }
    [[nodiscard]] std::unique_ptr<Sound> soundWithContentsOfFile(const QString &path) override;

    /// Sets the duration of a file, in seconds; without this call it is 0.
    void setFileDuration(const QString &path, double seconds) { _fileDurations[path] = seconds; }

    /// From now on the file answers only when told to by answer().
    void holdFile(const QString &path) { _heldFiles.insert(path); }
    /// Lets a held file answer with its duration, now and in future.
    void answer(const QString &path, double seconds);

    /// The newest existing sound of this name; null if there is none.
    [[nodiscard]] FakeSound *sound(const QString &name) const;
    [[nodiscard]] bool isPlaying(const QString &name) const;
    /// Lets every sound reach its end.
    void endAll();

    /// The lines of the diary that begin with this text.
    [[nodiscard]] QStringList diary(const QString &beginning = {}) const;
    void clearDiary() { _diary.clear(); }

    /// False as on a computer without the library that opens files; no sound can be made then.
    bool opensFiles = true;

    /// Called whenever a sound begins.
    std::function<void()> whenPlayed = [] {};

private:
    friend class FakeSound;

    std::unique_ptr<Sound> make(const QString &name, double duration);

    QHash<QString, double> _fileDurations;
    QSet<QString> _heldFiles;
    std::vector<FakeSound *> _sounds;
    QStringList _diary;
};

/// Records the notifications: the news, the ones shown again, and those still on the desktop.
class FakeNotifications final : public DesktopNotifications
{
public:
    struct Shown
    {
        const QObject *sender;
        DesktopNotification notification;
    };

    void notify(const QObject &sender, const DesktopNotification &notification) override
    {
        const bool news = notification.occasion == DesktopNotification::Occasion::News;
        (news ? shown : shownAgain).push_back({&sender, notification});
        withdraw(sender);
        standing.push_back({&sender, notification});
    }

    void withdraw(const QObject &sender) override
    {
        std::erase_if(standing, [&](const Shown &each) { return each.sender == &sender; });
    }

    /// Closes the notification at this index of `standing`, as the user or the desktop does.
    void close(std::size_t place, DesktopNotification::End end)
    {
        const auto gone = standing.begin() + static_cast<std::ptrdiff_t>(place);
        const auto closed = gone->notification.closed;
        standing.erase(gone);
        if (closed)
            closed(end);
    }

    /// The notifications of new events, in order.
    std::vector<Shown> shown;
    /// The changes and reminders, in order.
    std::vector<Shown> shownAgain;
    /// Those that are on the desktop now.
    std::vector<Shown> standing;
};

/// Knows whether the screen may go blank, and why not.
class FakeScreenBlanking final : public ScreenBlanking
{
public:
    bool isInhibited = false;
    /// The last reason for which it may not.
    QString reason;

protected:
    void begin(const QString &why) override
    {
        isInhibited = true;
        reason = why;
    }
    void end() override { isInhibited = false; }
};

/// Records what the program asks the desktop for.
class FakeDesktop final : public Desktop
{
public:
    void requestUserAttention(QWidget &window) override { attentionAskedFor.push_back(&window); }
    void beep() override { ++beeps; }
    void announce(QWidget & /*window*/, const QString &text) override { announced << text; }
    void openUrl(const QUrl &url) override { opened.push_back(url); }

    QStringList announced;
    std::vector<QWidget *> attentionAskedFor;
    std::vector<QUrl> opened;
    int beeps = 0;
};

/// Answers with the files that the test has chosen, in order; after the last it cancels.
class FakeOpenPanel final : public OpenPanel
{
public:
    std::optional<QUrl> runModal(QWidget &window, const QString &title) override;

    /// Adds a file to the answers.
    void choose(const QString &path) { _choices.push_back(QUrl::fromLocalFile(path)); }
    void choose(const QUrl &url) { _choices.push_back(url); }

    /// The titles of the panels shown so far.
    QStringList titles;
    /// The window over which the last panel was shown.
    QWidget *lastWindow = nullptr;

private:
    std::vector<QUrl> _choices;
};

/// Shows nothing, and counts the changes that a real item would have shown.
class FakeStatusItem final : public StatusItem
{
public:
    int changes = 0;

protected:
    void changed() override { ++changes; }
};

class FakeLauncherEntry final : public LauncherEntry
{
public:
    [[nodiscard]] bool isRead() override { return _isRead; }
    void show(const LauncherState &state) override { shown.push_back(state); }

    /// From now on there is a panel or dock that shows the states.
    void read()
    {
        _isRead = true;
        becomeRead();
    }

    std::vector<LauncherState> shown;

private:
    bool _isRead = false;
};

/// A menu with the lines that the test sets. It records which lines are chosen.
class FakeStatusMenu final : public StatusMenu
{
public:
    [[nodiscard]] std::vector<Line> lines() override
    {
        ++timesAsked;
        return current;
    }
    void choose(int id) override { chosen.push_back(id); }

    std::vector<Line> current;
    std::vector<int> chosen;
    int timesAsked = 0;
};
