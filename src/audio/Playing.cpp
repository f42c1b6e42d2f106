#include "audio/Playing.h"

#include "audio/AudioFile.h"
#include "audio/Outputs.h"
#include "audio/Voice.h"

#include <utility>

namespace
{
std::unique_ptr<AudioFile> openFile(const OpenSoundBytes &open)
{
    return open ? AudioFile::open(open()) : nullptr;
}
} // namespace

Playing::Playing(OpenSoundBytes standIn, std::shared_ptr<const SoundControls> controls,
                 std::shared_ptr<Outputs> outputs, Workers workers) :
    _standIn(std::move(standIn)),
    _controls(std::move(controls)), _outputs(std::move(outputs)), _workers(std::move(workers))
{}

void Playing::start(const OpenSoundBytes &open, int sampleRate, Openings::Ticket ticket)
{
    const std::shared_ptr<Voice> voice = makeVoice(sampleRate);
    _voice = voice;
    // From here on the thread may replace _voice at any time. The first voice is played already
    // now, so that the device opens while the file does.
    const bool opens = ticket != nullptr;
    if (!opens || _workers.start([self = shared_from_this(), open, voice,
                                  ticket = std::move(ticket)]() mutable {
            self->playFile(open, voice, std::move(ticket));
        }))
        _outputs->play(voice);
    else
        voice->finish();
}

void Playing::wait()
{
    _voice = makeVoice(Outputs::kUnheardRate);
    _outputs->playUnheard(_voice);
}

void Playing::goOn(const OpenSoundBytes &open)
{
    if (_isDecided)
        return;
    if (!_workers.start([self = shared_from_this(), open] { self->playFile(open, {}, {}); }))
        currentVoice()->finish();
}

bool Playing::isPlaying() const
{
    // The lock makes sure that this is not a voice that was replaced and has ended.
    const std::lock_guard lock(_mutex);
    return _voice->isPlaying();
}

void Playing::stop()
{
    const std::lock_guard lock(_mutex);
    _isStopped = true;
    _voice->stop();
}

std::shared_ptr<Voice> Playing::makeVoice(int sampleRate)
{
    return std::make_shared<Voice>(sampleRate, _controls, [playing = weak_from_this()] {
        if (const std::shared_ptr<Playing> self = playing.lock())
            self->fileTimedOut();
    });
}

std::shared_ptr<Voice> Playing::currentVoice() const
{
    const std::lock_guard lock(_mutex);
    return _voice;
}

/// Reads the file into this voice, or into a new one if there is none or the file has another
/// sample rate.
void Playing::playFile(const OpenSoundBytes &open, std::shared_ptr<Voice> voice,
                       Openings::Ticket ticket)
{
    const std::unique_ptr<AudioFile> file = openFile(open);
    if (file && !(voice && voice->sampleRate() == file->sampleRate()))
        voice = makeVoice(file->sampleRate());
    const bool canBeHeard = file && voice->begin(*file);
    ticket.reset();
    if (!decide())
        return;
    if (canBeHeard)
        readOn(*file, voice);
    else
        playStandIn();
}

/// Plays the stand-in, because the file has delivered nothing. For the mixing thread.
void Playing::fileTimedOut()
{
    if (decide() && !_workers.start([self = shared_from_this()] { self->playStandIn(); }))
        currentVoice()->finish();
}

void Playing::playStandIn()
{
    const std::unique_ptr<AudioFile> file = openFile(_standIn);
    // Not the first voice: the thread of a file that opens late may still write to that one.
    const std::shared_ptr<Voice> voice = file ? makeVoice(file->sampleRate()) : nullptr;
    if (voice && voice->begin(*file))
        readOn(*file, voice);
    else
        currentVoice()->finish();
}

void Playing::readOn(AudioFile &file, const std::shared_ptr<Voice> &voice)
{
    if (voice != currentVoice())
        switchTo(voice);
    voice->readOn(file);
}

void Playing::switchTo(const std::shared_ptr<Voice> &voice)
{
    std::shared_ptr<Voice> last = voice;
    {
        const std::lock_guard lock(_mutex);
        std::swap(_voice, last);
        if (_isStopped)
            voice->stop();
    }
    _outputs->play(voice);
    last->finish();
}
