#pragma once

#include <QtGlobal>

#include <span>

/// Checks files of compiled translations.
namespace TranslationFile
{
/// Whether these are the contents of a file that lrelease has made: all its parts lie within it.
/// QTranslator follows the positions and lengths in a file without checking them, so a damaged file
/// would make it read outside of the file. Texts may be wrong in spite of this check.
[[nodiscard]] bool isSound(std::span<const uchar> contents);
} // namespace TranslationFile
