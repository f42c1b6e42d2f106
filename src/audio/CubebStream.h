#pragma once

#include <QByteArray>

#include <cubeb/cubeb.h>

#include <functional>
#include <memory>
#include <span>

/// A running stereo stream to the system's default sound device. Opening and destroying it wait
/// for the sound server, forever if the server hangs.
class CubebStream final
{
public:
    /// Fills a buffer with the next samples, stereo and interleaved.
    using Render = std::function<void(std::span<float> stereo)>;

    /// Opens and starts a stream at this sample rate; null if there is no device. The user sees the
    /// title in the volume control. Both functions are called on a thread of cubeb; lost is called
    /// once the stream has failed. The stream must then be destroyed, but not inside lost.
    [[nodiscard]] static std::unique_ptr<CubebStream>
    open(int sampleRate, const QByteArray &title, Render render, std::function<void()> lost);
    Q_DISABLE_COPY_MOVE(CubebStream)
    ~CubebStream() = default;

private:
    struct Destroy
    {
        void operator()(cubeb *context) const { cubeb_destroy(context); }
        void operator()(cubeb_stream *stream) const;
    };

    CubebStream(Render render, std::function<void()> lost);

    [[nodiscard]] bool start(int sampleRate, const QByteArray &title);

    static long dataWanted(cubeb_stream *stream, void *user, const void *input, void *output,
                           long frames);
    static void stateChanged(cubeb_stream *stream, void *user, cubeb_state state);

    Render _render;
    std::function<void()> _lost;
    std::unique_ptr<cubeb, Destroy> _context;
    std::unique_ptr<cubeb_stream, Destroy> _stream;
};
