#pragma once

#include <QString>

#include <vector>

/// A place in a text.
struct HelpHit
{
    int position;
    int length;

    bool operator==(const HelpHit &) const = default;
};

/// Where these words, or parts of words, stand in the text, in their order and without overlap.
/// There is no place unless each of the words has one. Capitals and the form of an apostrophe do
/// not matter.
[[nodiscard]] std::vector<HelpHit> helpHits(const QString &text, const QString &words);
