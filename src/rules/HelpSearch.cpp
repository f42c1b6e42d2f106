#include "rules/HelpSearch.h"

#include <QStringList>

#include <algorithm>

/// The letter without its accents, a plain apostrophe or a plain blank; other characters as they
/// are.
static QChar folded(QChar character)
{
    if (character == QChar(u'’'))
        return QLatin1Char('\'');
    if (character.isSpace())
        return QLatin1Char(' ');
    const QString parts = character.decomposition();
    const bool isAccented = character.decompositionTag() == QChar::Canonical &&
                            parts.front().script() == QChar::Script_Latin;
    return isAccented ? folded(parts.front()) : character;
}

/// Folds each character, so the length stays. A word finds its other spellings in texts.
static QString folded(QString text)
{
    std::ranges::transform(text, text.begin(), [](QChar each) { return folded(each); });
    return text;
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
    const QString searchedWords = folded(words.normalized(QString::NormalizationForm_C));
    for (const QString &word : searchedWords.simplified().split(u' ', Qt::SkipEmptyParts)) {
        if (!addHits(hits, searched, word))
            return {};
    }
    return merged(std::move(hits));
}
