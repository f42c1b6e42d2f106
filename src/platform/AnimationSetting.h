#pragma once

/// The user's choice whether windows move and fade. Qt 6.4 does not ask the desktop for it.
namespace AnimationSetting
{
/// False if the desktop says that animations are off. True on a desktop that says nothing.
[[nodiscard]] bool isOn();
} // namespace AnimationSetting
