#include "audio/CubebStream.h"

#include "audio/BackEnd.h"

std::unique_ptr<CubebStream> CubebStream::open(int sampleRate, const QByteArray &title,
                                               Render render, std::function<void()> lost)
{
    std::unique_ptr<CubebStream> stream(new CubebStream(std::move(render), std::move(lost)));
    return stream->start(sampleRate, title) ? std::move(stream) : nullptr;
}

CubebStream::CubebStream(Render render, std::function<void()> lost) :
    _render(std::move(render)), _lost(std::move(lost))
{}

void CubebStream::Destroy::operator()(cubeb_stream *stream) const
{
    cubeb_stream_stop(stream);
    cubeb_stream_destroy(stream);
}

bool CubebStream::start(int sampleRate, const QByteArray &title)
{
    cubeb *context = nullptr;
    if (cubeb_init(&context, title.constData(), soundBackEnd()) != CUBEB_OK)
        return false;
    _context.reset(context);

    // Thirty milliseconds: short enough to hear a stop at once, long enough for a busy computer.
    const auto latency = static_cast<uint32_t>(sampleRate * 3 / 100);
    cubeb_stream_params parameters = {};
    parameters.format = CUBEB_SAMPLE_FLOAT32NE;
    parameters.rate = static_cast<uint32_t>(sampleRate);
    parameters.channels = 2;
    parameters.layout = CUBEB_LAYOUT_STEREO;
    parameters.prefs = CUBEB_STREAM_PREF_NONE;
    cubeb_stream *stream = nullptr;
    if (cubeb_stream_init(context, &stream, title.constData(), nullptr, nullptr, nullptr,
                          &parameters, latency, dataWanted, stateChanged, this) != CUBEB_OK)
        return false;
    _stream.reset(stream);
    return cubeb_stream_start(stream) == CUBEB_OK;
}

long CubebStream::dataWanted(cubeb_stream *, void *user, const void *, void *output, long frames)
{
    const auto samples = static_cast<std::size_t>(frames) * 2;
    static_cast<CubebStream *>(user)->_render({static_cast<float *>(output), samples});
    return frames;
}

void CubebStream::stateChanged(cubeb_stream *, void *user, cubeb_state state)
{
    if (state == CUBEB_STATE_ERROR)
        static_cast<CubebStream *>(user)->_lost();
}
