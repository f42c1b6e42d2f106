#pragma once

#include "audio/Workers.h"

#include <QByteArray>

#include <map>
#include <memory>
#include <mutex>

class Output;
class Voice;

/// The outputs of a sound system, one for each sample rate that has been played. Any thread; no
/// operation waits for the sound server or for a file.
class Outputs final
{
public:
    /// The user sees the title in the volume control.
    Outputs(QByteArray title, Workers workers);
    Q_DISABLE_COPY_MOVE(Outputs)
    ~Outputs();

    /// Plays the voice at its sample rate; after close() it only ends the voice.
    void play(const std::shared_ptr<Voice> &voice);

    /// Ends all voices. Nothing plays after this.
    void close();

private:
    const QByteArray _title;
    const Workers _workers;

    std::mutex _mutex;
    std::map<int, std::shared_ptr<Output>> _outputs;
    bool _isClosed = false;
};
