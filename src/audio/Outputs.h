#pragma once

#include "audio/Output.h"
#include "audio/Workers.h"

#include <QByteArray>

#include <map>
#include <memory>
#include <mutex>

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

    /// The sample rate of voices that are not heard; a low one, because it costs less.
    static constexpr int kUnheardRate = 8000;

    /// Plays the voice at its sample rate; after close() it only ends the voice.
    void play(const std::shared_ptr<Voice> &voice);

    /// The same for a voice of kUnheardRate, but opens no device: only the time of the voice
    /// passes.
    void playUnheard(const std::shared_ptr<Voice> &voice);

    /// Ends all voices. Nothing plays after this.
    void close();

private:
    void add(const std::shared_ptr<Voice> &voice, std::shared_ptr<Output> &output,
             Output::Device device);

    const QByteArray _title;
    const Workers _workers;

    std::mutex _mutex;
    std::map<int, std::shared_ptr<Output>> _outputs;
    std::shared_ptr<Output> _unheard;
    bool _isClosed = false;
};
