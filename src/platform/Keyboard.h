#pragma once

#include <QOperatingSystemVersion>
#include <Qt>

/// The two modifier keys that the program's own shortcuts and drags ask for.
namespace Keyboard
{
inline constexpr bool kIsMac =
    QOperatingSystemVersion::currentType() == QOperatingSystemVersion::MacOS;

/// The Command key of macOS, which Qt calls Control there. Alt stands in for it on keyboards that
/// have none.
inline constexpr Qt::KeyboardModifier kCommand = kIsMac ? Qt::ControlModifier : Qt::AltModifier;
inline constexpr Qt::KeyboardModifier kControl = kIsMac ? Qt::MetaModifier : Qt::ControlModifier;
} // namespace Keyboard
