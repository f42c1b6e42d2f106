#pragma once

#include <QOperatingSystemVersion>
#include <Qt>

/// The two modifier keys of the program's own shortcuts and drags.
namespace Keyboard
{
inline constexpr bool kIsMac =
    QOperatingSystemVersion::currentType() == QOperatingSystemVersion::MacOS;

/// The Command key of macOS, which Qt calls Control there. On other systems Alt takes its place.
inline constexpr Qt::KeyboardModifier kCommand = kIsMac ? Qt::ControlModifier : Qt::AltModifier;
inline constexpr Qt::KeyboardModifier kControl = kIsMac ? Qt::MetaModifier : Qt::ControlModifier;
} // namespace Keyboard
