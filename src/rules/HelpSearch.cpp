#include "rules/HelpSearch.h"

#include <QStringList>

#include <algorithm>

/// Replaces typographic apostrophes and non-breaking blanks by plain ones. Keeps the length.
static QString folded(QString text)
{
    text.replace(QChar(u'’'), QLatin1Char('\''));
    return text.replace(QChar(QChar::Nbsp), QLatin1Char(' '));
}

/// Adds every occurrence of the word; false if there is none.
static bool addHits(std::vector<HelpHit> &hits, const QString &text, const QString &word)
{
    const auto length = static_cast<int>(word.size());
    qsizetype at = text.indexOf(word, 0, Qt::CaseInsensitive);
    const bool found = at >= 0;
    for (; at >= 0; at = text.indexOf(word, at + length, Qt::CaseInsensitive))
        hits.push_back({static_cast<int>(at), length});
    return found;
}

/// Merges hits that overlap.
static std::vector<HelpHit> merged(std::vector<HelpHit> hits)
{
    std::ranges::sort(hits, {}, &HelpHit::position);
    std::vector<HelpHit> apart;
    for (const HelpHit &hit : hits) {
        if (apart.empty() || hit.position >= apart.back().position + apart.back().length) {
            apart.push_back(hit);
            continue;
        }
        HelpHit &last = apart.back();
        last.length = std::max(last.length, hit.position + hit.length - last.position);
    }
    return apart;
}

std::vector<HelpHit> helpHits(const QString &text, const QString &words)
{
    const QString searched = folded(text);
    std::vector<HelpHit> hits;
    for (const QString &word : folded(words).simplified().split(u' ', Qt::SkipEmptyParts)) {
        if (!addHits(hits, searched, word))
            return {};
    }
    return merged(std::move(hits));
}
