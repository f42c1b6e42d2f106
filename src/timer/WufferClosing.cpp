#include "base/UserDefaults.h"
#include "timer/Wuffer.h"

void Wuffer::windowWillClose()
{
    if (_closed)
        return;
    _alarmNotification.answer();
    setWindowed();
    endTargetTimeSheet();
    for (Sound *sound : {_doneSound.get(), _beepSound.get()}) {
        if (sound && sound->isPlaying())
            sound->stop();
    }
    // A running timer closes without saving its settings.
    if (_run.isStarted()) {
        _checkTimer.invalidate();
        _run.stop(Date::now());
    } else {
        saveSettingsToDefaultKey();
        UserDefaults::standardUserDefaults().synchronize();
    }
    if (_targetWuffer)
        _targetWuffer->removeTargetingWuffer();
    if (_reverseTargetWuffer)
        _reverseTargetWuffer->removeTargetWuffer();
    _closed = true;
    Q_EMIT closed();
    postStatusChanged();
    Q_EMIT stateChanged();
}
