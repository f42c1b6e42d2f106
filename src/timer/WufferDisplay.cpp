#include "BuildInfo.h"
#include "controls/PanelColors.h"
#include "rules/TimeFormat.h"
#include "rules/TimerTexts.h"
#include "timer/DisplayFont.h"
#include "timer/Wuffer.h"
#include "ui_Wuffer.h"

#include <QWindow>

namespace
{
/// A countdown turns red when this many seconds are left.
constexpr double kRedSeconds = 11.0;

/// Draws the text of a field on this panel in the colour.
void setTextColor(QLineEdit &field, const QColor &color, const QPalette &panel)
{
    const QColor ink = PanelColors::inkFor(color, panel);
    if (field.palette().color(QPalette::Text) == ink)
        return;
    QPalette palette;
    palette.setColor(QPalette::Text, ink);
    field.setPalette(palette);
}
} // namespace

void Wuffer::refreshDisplay(double remaining, double timeElapsed)
{
    _displayRest.setResting(false);
    if (remaining <= 0) {
        setDefaultDisplayValues();
        return;
    }
    if (_run.isStopwatch()) {
        setResultLabelText(TimeFormat::stringForTime(timeElapsed));
        _ui->_elapsedLabel->setText(TimerTexts::stopwatch());
    } else {
        setResultLabelText(TimeFormat::stringForTime(remaining));
        //: The time since the start of a timer.
        _ui->_elapsedLabel->setText(
            timeElapsed == 0
                ? QString()
                : tr("Elapsed: %1")
                      .arg(_run.withRepeatCount(TimeFormat::stringForTime(timeElapsed))));
    }
    const RunTimes times{remaining, timeElapsed};
    _ui->_displayBox->setShareLeft(_run.isStopwatch() ? 0 : shareLeft(times));
    const double counted = _run.counted(times);
    _ui->_msLabel->setText(_energySaverActive ? QString() : TimeFormat::msStringForTime(counted));

    // The big display already shows the time, so this compares the time with the name.
    const bool black =
        remaining > kRedSeconds || _run.isStopwatch() || statusString() == BuildInfo::name();
    setColorForDisplayText(black ? TextColor::Black : TextColor::Red, true);
}

void Wuffer::setResultLabelText(const QString &text)
{
    const bool fullScreen = _ui->_displayBox->isInFullScreenMode();
    DisplayFont::apply(*_ui->_resultLabel, DisplayFont::resultSize(text.length(), fullScreen));
    _ui->_resultLabel->setText(text);
}

void Wuffer::setColorForDisplayText(TextColor color, bool elapsedToo)
{
    _titleColor = color;
    setTextColor(*_ui->_titleField, colorOf(color), _ui->_displayBox->palette());
    _ui->_fullTitleField->setTextColor(colorOf(color));
    _ui->_resultLabel->setTextColor(colorOf(color));
    _ui->_msLabel->setTextColor(colorOf(color));
    _ui->_displayBox->setBarColor(colorOf(color));
    if (elapsedToo)
        setElapsedColor(color);
}

void Wuffer::setElapsedColor(TextColor color)
{
    _elapsedColor = color;
    _ui->_elapsedLabel->setTextColor(colorOf(color));
}

QColor Wuffer::currentTextColor() const
{
    return _ui->_resultLabel->textColor();
}

void Wuffer::windowExposed()
{
    // A window is not exposed while it is minimised, on another workspace or otherwise out of
    // sight.
    const QWindow *place = _ui->_displayBox->window()->windowHandle();
    const bool unseen = place != nullptr && !place->isExposed();
    if (!_displayRest.setUnseen(unseen))
        return;
    _checkTimer.skipTicks(0);
    const RunTimes times = _run.timesAt(Date::now());
    refreshDisplay(times.remaining, times.elapsed);
}

void Wuffer::setDefaultDisplayValues()
{
    setResultLabelText(BuildInfo::name());
    _ui->_displayBox->setShareLeft(0);
    _ui->_msLabel->setText(QStringLiteral("v") + BuildInfo::version());
    _ui->_elapsedLabel->setText(tr("Ready when you are"));
    setColorForDisplayText(TextColor::Black, true);
}
