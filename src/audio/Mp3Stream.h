#pragma once

#include <QIODevice>

#include <optional>

/// What the first frames of an MP3 file state, without decoding.
struct Mp3Stream
{
    /// Finds the stream, which must begin right after the tags at the head of the file, with two
    /// frames that fit together; nothing if it does not. The name of the file does not matter.
    /// Leaves the bytes at their beginning.
    [[nodiscard]] static std::optional<Mp3Stream> find(QIODevice &bytes);

    /// True if the encoder stated the number of frames in a form that libmpg123 reads.
    bool statesLength = false;

    /// True if the encoder stated more bytes than the file has.
    bool isTruncated = false;
};
