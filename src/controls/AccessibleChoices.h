#pragma once

/// How combo boxes present themselves to assistive programs. linux/ and generic/ both define this
/// function; the build takes one of the two.
namespace AccessibleChoices
{
/// Presents each SpokenComboBox so that screen readers can read its entry aloud, on systems where
/// Qt by itself does not. Further calls do nothing.
void install();
} // namespace AccessibleChoices
