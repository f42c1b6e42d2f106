#pragma once

#include <QString>

#include <vector>

/// An occurrence in a text.
struct HelpHit
{
    int position;
    int length;

    bool operator==(const HelpHit &) const = default;
};

/// Where the words occur in the text, in order and without overlap; parts of words match too. Empty
/// unless every word occurs. Case and the form of apostrophes do not matter.
[[nodiscard]] std::vector<HelpHit> helpHits(const QString &text, const QString &words);
