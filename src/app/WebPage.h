#pragma once

#include <QUrl>

/// The web page of the program.
namespace WebPage
{
/// The address that the build was given, or the page that is installed with the program.
[[nodiscard]] QUrl address();
} // namespace WebPage
