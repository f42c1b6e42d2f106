#include "platform/AnimationSetting.h"

bool AnimationSetting::isOn()
{
    return true;
}
