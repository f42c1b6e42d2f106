#pragma once

#include <QIODevice>

#include <optional>

/// What the first frames of an MP3 file tell about it without decoding anything.
struct Mp3Stream
{
    /// Looks for the stream: it must begin right after the tags at the head of the file, with two
    /// frames that fit together. Nothing when it does not, whatever the file is called. Leaves the
    /// bytes at their beginning.
    [[nodiscard]] static std::optional<Mp3Stream> find(QIODevice &bytes);

    /// Whether the encoder noted how many frames there are.
    bool statesLength = false;

    /// True when the encoder noted more bytes than the file has.
    bool isCut = false;
};
