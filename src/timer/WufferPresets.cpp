#include "base/Desktop.h"
#include "base/NotificationCenter.h"
#include "base/Service.h"
#include "base/UserDefaults.h"
#include "rules/NotificationText.h"
#include "rules/Preset.h"
#include "rules/TimeFormat.h"
#include "rules/TimerSettings.h"
#include "rules/TimerTexts.h"
#include "timer/Wuffer.h"
#include "timer/WufferWindow.h"
#include "ui_Wuffer.h"

QString Wuffer::keyForPreset(quint32 number)
{
    return Preset::key(number);
}

QString Wuffer::stringForPreset(qint32 number)
{
    UserDefaults &defaults = UserDefaults::standardUserDefaults();
    const QString key = keyForPreset(static_cast<quint32>(number));
    QVariantMap record = defaults.dictionaryForKey(key);
    if (record.isEmpty()) {
        record = Preset::defaultRecord(number);
        defaults.setObject(record, key);
    }
    return Preset::text(TimerSettings::fromRecord(record));
}

void Wuffer::setPreset(qint32 number)
{
    if (_run.isStarted() || _run.isStopwatch())
        return;
    const QString name = title();
    _ui->_titleField->setText(name);
    storeSettingsInDefaultsWithKey(keyForPreset(static_cast<quint32>(number)));
    showPresetMark(name, Preset::savedMark(number));
    Service<Desktop>::current().announce(
        *_window,
        TimerTexts::nameAndStatus(NotificationText::line(name), Preset::savedMark(number)));
    NotificationCenter::defaultCenter().postNotificationName(Notices::kPresetsChanged, this);
}

void Wuffer::showPresetMark(const QString &name, const QString &origin)
{
    setResultLabelText(name);
    _ui->_displayBox->setShareLeft(0);
    _ui->_msLabel->setText(TimeFormat::hmsString(hours(), minutes(), seconds()));
    _ui->_elapsedLabel->setText(origin);
    setPresetColor();
}

void Wuffer::setPresetColor()
{
    setColorForDisplayText(TextColor::Blue, true);
}

void Wuffer::removePresetColor()
{
    if (_titleColor == TextColor::Blue) {
        setColorForDisplayText(TextColor::Black, false);
        if (_elapsedColor == TextColor::Blue)
            setElapsedColor(TextColor::Black);
    }
    if (Preset::isMark(_ui->_elapsedLabel->text()))
        _ui->_elapsedLabel->setText({});
}
