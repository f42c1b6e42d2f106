#include "base/Clock.h"
#include "base/Service.h"
#include "timer/TargetTimeSheet.h"
#include "timer/TimeEntry.h"
#include "timer/Wuffer.h"
#include "timer/WufferWindow.h"

void Wuffer::targetTime()
{
    if (_run.isStarted())
        return;
    if (!_targetTimeWindow) {
        _targetTimeWindow = std::make_unique<TargetTimeSheet>(*_window);
        connect(_targetTimeWindow.get(), &QDialog::accepted, this, &Wuffer::startWithTargetTime);
    }
    _timeEntry->spreadFractions();
    const QDateTime now = Service<Clock>::current().calendarNow();
    _targetTimeWindow->setMinDate(now);
    _targetTimeWindow->setDateValue(now.addSecs(static_cast<qint64>(timeLeftFromFields())));
    _targetTimeWindow->open();
    _targetTimeWindow->raise();
}

void Wuffer::startWithTargetTime()
{
    const QDateTime now = Service<Clock>::current().calendarNow();
    const qint64 interval = now.msecsTo(_targetTimeWindow->dateValue());
    endTargetTimeSheet();
    setFieldsWithTimeLeft(static_cast<double>(interval) / 1000.0);
    goPressed();
}

void Wuffer::endTargetTimeSheet()
{
    if (_targetTimeWindow)
        _targetTimeWindow->hide();
}
