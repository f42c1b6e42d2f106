#pragma once

#include <Qt>

/// The two modifier keys that the program's own shortcuts and drags ask for.
namespace Keyboard
{
#ifdef Q_OS_MACOS
/// The Command key of macOS, which Qt calls Control there.
inline constexpr Qt::KeyboardModifier kCommand = Qt::ControlModifier;
inline constexpr Qt::KeyboardModifier kControl = Qt::MetaModifier;
#else
/// Alt stands in for the Command key that other keyboards do not have.
inline constexpr Qt::KeyboardModifier kCommand = Qt::AltModifier;
inline constexpr Qt::KeyboardModifier kControl = Qt::ControlModifier;
#endif
} // namespace Keyboard
