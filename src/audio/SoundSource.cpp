#include "audio/SoundSource.h"

#include "audio/AudioFile.h"

#include <QFileInfo>

SoundFacts SoundFacts::read(const SoundSource &source)
{
    if (const std::unique_ptr<AudioFile> file = AudioFile::open(source.open()))
        return {file->duration(), file->sampleRate(), false};
    return {0, 0, !QFileInfo::exists(source.name)};
}
