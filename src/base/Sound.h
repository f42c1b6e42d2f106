#pragma once

#include <QString>

#include <cmath>
#include <functional>
#include <memory>

/// One sound that can be played, independent of every other sound.
///
/// A SoundSystem makes it for its caller, who owns it; destroying it silences it. None of the
/// operations waits for the sound server, for a file or for another thread. Main thread.
class Sound
{
public:
    Sound() = default;
    virtual ~Sound() = default;
    Q_DISABLE_COPY_MOVE(Sound)

    /// What the sound was made from: the path of its file, or the name of its resource.
    [[nodiscard]] virtual QString name() const = 0;

    /// Length of one pass in seconds; 0 when the file cannot be played, and infinity until the file
    /// has answered. Changes only when the event loop runs.
    [[nodiscard]] virtual double duration() const = 0;

    /// Whether it is known if the file can be played. A file on a slow disk answers late, and one
    /// on a server that is gone never does.
    [[nodiscard]] bool hasAnswered() const { return !std::isinf(duration()); }

    /// Whether there is no file at the path; false until the file has answered.
    [[nodiscard]] virtual bool isMissing() const = 0;

    /// Sets the function to call when the file answers. It is called from the event loop, at most
    /// once, and may destroy the sound. Has no effect if the file has answered already.
    virtual void setWhenAnswered(std::function<void()> function) = 0;

    /// Keeps the sound that was in use before this one, of the same system, until the file has
    /// answered. If this sound plays and the file turns out to be unplayable, the kept sound is
    /// heard in its place, with the volume and looping of this one.
    virtual void keep(std::unique_ptr<Sound> last) = 0;

    /// Returns the kept sound; null if there is none.
    [[nodiscard]] virtual std::unique_ptr<Sound> takeKept() = 0;

    /// Sets the program's own sound ("crow.wav") that is played instead if the file turns out to be
    /// unplayable at playback, or yields nothing within two seconds. The name, volume and looping
    /// of this sound apply to it. None by default.
    virtual void setStandIn(const QString &fileName) = 0;

    /// Plays from the beginning. Has no effect while the sound plays.
    virtual void play() = 0;

    /// Silences the sound; the next play begins at the beginning.
    virtual void stop() = 0;

    /// True from play() until the end of the last pass or until stop(). This takes as long without
    /// a sound device, so that a caller can wait for the end of the sound.
    [[nodiscard]] virtual bool isPlaying() const = 0;

    /// Loudness from 0 (silent) to 1 (as recorded); 1 by default.
    [[nodiscard]] virtual float volume() const = 0;

    /// Takes effect at once, also while playing. Values are limited to 0 to 1; NaN counts as 0.
    virtual void setVolume(float volume) = 0;

    /// Whether the sound begins again when it reaches its end; off by default. The flag is read at
    /// the end of each pass, so it may change while the sound plays.
    virtual void setLoops(bool loops) = 0;
};

/// Makes sounds. Main thread.
class SoundSystem
{
public:
    SoundSystem() = default;
    virtual ~SoundSystem() = default;
    Q_DISABLE_COPY_MOVE(SoundSystem)

    /// The program's own sound of this file name ("crow.wav"), or null when there is none.
    [[nodiscard]] virtual std::unique_ptr<Sound> soundNamed(const QString &fileName) = 0;

    /// Whether this system can open sound files at all. If not, a duration of 0 says nothing about
    /// the file.
    [[nodiscard]] virtual bool canOpenFiles() = 0;

    /// The sound in the file at this path. The file is opened once on another thread, to find the
    /// duration, and again each time it is played. A file that cannot be played gives a sound of
    /// duration 0.
    [[nodiscard]] virtual std::unique_ptr<Sound> soundWithContentsOfFile(const QString &path) = 0;
};
