#include "rules/NameText.h"
#include "rules/NumberText.h"
#include "rules/TimeFields.h"
#include "timer/TimeEntry.h"
#include "timer/Wuffer.h"
#include "timer/WufferWindow.h"
#include "ui_Wuffer.h"

double Wuffer::timeLeftFromFields() const
{
    return TimeFields::total(hours(), minutes(), seconds());
}

qint32 Wuffer::hours() const
{
    return NumberText::integerFrom(_ui->_hoursField->text());
}

qint32 Wuffer::minutes() const
{
    return NumberText::integerFrom(_ui->_minutesField->text());
}

qint32 Wuffer::seconds() const
{
    return NumberText::integerFrom(_ui->_secondsField->text());
}

void Wuffer::setFieldsWithTimeLeft(double timeLeft)
{
    const TimeFields fields = TimeFields::fromSeconds(timeLeft);
    _ui->_hoursField->setText(QString::number(fields.hours));
    _ui->_minutesField->setText(QString::number(fields.minutes));
    _ui->_secondsField->setText(NumberText::fromSeconds(fields.seconds));
    _timeEntry->makeReady();
}

void Wuffer::rename()
{
    _ui->_titleField->setFocus(Qt::ShortcutFocusReason);
    _ui->_titleField->selectAll();
    // Return then ends the editing and neither starts nor stops the timer.
    disableReturnShortcut();
}

void Wuffer::controlTextDidChange(const QLineEdit &field)
{
    if (&field == _ui->_titleField) {
        _window->setWindowTitle(NameText::asWindowTitle(field.text()));
        // Return now ends the editing instead of starting the timer.
        disableReturnShortcut();
    }
    if (_reverseTargetWuffer)
        _reverseTargetWuffer->populateFinishedPickerComboWithChosenTargetWuffer();
    removePresetColor();
}

void Wuffer::controlTextDidEndEditing(const QLineEdit &field)
{
    // Wait a moment: the Return that has ended the editing must not also start the timer.
    constexpr double returnPause = 0.01;
    if (&field == _ui->_titleField)
        _returnTimer.startOnce(returnPause);
}

void Wuffer::comboBoxSelectionDidChange(QComboBox &combo)
{
    removePresetColor();
    if (&combo == _ui->_finishedCombo)
        handleFinishedComboChange();
    if (auto *sounds = qobject_cast<WebbyComboBox *>(&combo))
        handleManageSounds(*sounds);
}

void Wuffer::enableReturnShortcut()
{
    _window->setReturnShortcutEnabled(true);
}

void Wuffer::disableReturnShortcut()
{
    _returnTimer.invalidate();
    _window->setReturnShortcutEnabled(false);
}
