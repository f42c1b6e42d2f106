#include "platform/AnimationSetting.h"

#include "platform/linux/XSettings.h"

bool AnimationSetting::isOn()
{
    return XSettings::number("Gtk/EnableAnimations").value_or(1) != 0;
}
