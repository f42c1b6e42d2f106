#include "timer/Wuffer.h"

QString Wuffer::keyForPreset(quint32 number)
{
    return QStringLiteral("Preset %1").arg(number);
}

void Wuffer::saveSettingsToDefaultKey() {}

void Wuffer::loadSettingsFromDefaultsWithKey(const QString & /*key*/, bool /*moveWindow*/)
{
    handleFinishedComboChange();
    showWufferWindow();
}

void Wuffer::removePresetColor() {}
