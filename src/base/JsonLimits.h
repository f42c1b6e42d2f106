#pragma once

#include <QByteArrayView>

/// Limits of a JSON text, so that no file makes the program slow to start or take much memory.
namespace JsonLimits
{
/// The brackets that may be open at once.
constexpr int kDeepest = 512;
/// Keys, also of nested objects, and members of lists. Texts in lists do not count: the user may
/// have any number of sounds.
constexpr int kMostEntries = 100'000;

/// Whether the text stays within the limits. Does not parse it, so the text may be no JSON.
[[nodiscard]] bool areKept(QByteArrayView json);
} // namespace JsonLimits
