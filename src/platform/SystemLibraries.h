#pragma once

#include <span>

/// A library that the program is linked with, and what for, as the About dialog names it.
struct Library
{
    const char *name;
    /// To be translated in the context "AboutDialog".
    const char *use;
    const char *licence;
};

/// The libraries that the platform services are linked with.
namespace SystemLibraries
{
[[nodiscard]] const char *useOfQt();

[[nodiscard]] std::span<const Library> besideQt();
} // namespace SystemLibraries
