#include "timer/TargetTimeSheet.h"

#include "base/Clock.h"
#include "base/Service.h"
#include "controls/ReadableCalendar.h"
#include "rules/TimeDistance.h"
#include "rules/TimerTexts.h"
#include "ui_TargetTime.h"

#include <QApplication>
#include <QLocale>
#include <QPushButton>
#include <QStyle>
#include <QToolButton>

#include <utility>

namespace
{
/// Names a button of the calendar, which shows only an arrow, for screen readers.
void name(const QCalendarWidget &calendar, const QString &button, const QString &text)
{
    if (auto *arrow = calendar.findChild<QToolButton *>(button))
        arrow->setAccessibleName(text);
}

/// The short date format of the user's locale, followed by a time with seconds.
QString displayFormat()
{
    const QLocale locale;
    QString date = locale.dateFormat(QLocale::ShortFormat);
    // Two digits would not tell the century.
    if (!date.contains(QLatin1String("yyyy")))
        date.replace(QLatin1String("yy"), QLatin1String("yyyy"));
    const bool halfDays =
        locale.timeFormat(QLocale::ShortFormat).contains(QLatin1Char('a'), Qt::CaseInsensitive);
    return date + (halfDays ? QLatin1String("  h:mm:ss AP") : QLatin1String("  HH:mm:ss"));
}

QDateTime inWholeSeconds(const QDateTime &date)
{
    return date.addMSecs(-date.time().msec());
}
} // namespace

TargetTimeSheet::TargetTimeSheet(QWidget &parent) :
    QDialog(&parent, Qt::Sheet), _ui(std::make_unique<Ui::TargetTime>())
{
    _ui->setupUi(this);
    setWindowModality(Qt::WindowModal);
    _ui->_targetDateField->setAlignment(
        QStyle::visualAlignment(layoutDirection(), Qt::AlignLeading));
    _ui->_targetDateField->setDisplayFormat(displayFormat());
    _ui->_targetCalendar->setVerticalHeaderFormat(QCalendarWidget::NoVerticalHeader);
    new ReadableCalendar(*_ui->_targetCalendar);
    //: Accessible name: the arrow of the calendar that turns one month back.
    name(*_ui->_targetCalendar, QStringLiteral("qt_calendar_prevmonth"), tr("Previous month"));
    //: Accessible name: the arrow of the calendar that turns one month on.
    name(*_ui->_targetCalendar, QStringLiteral("qt_calendar_nextmonth"), tr("Next month"));
    _ui->_targetButtons->button(QDialogButtonBox::Ok)->setText(TimerTexts::start());
    for (QAbstractButton *button : _ui->_targetButtons->buttons())
        button->setIcon({});
    connectControls();
}

TargetTimeSheet::~TargetTimeSheet()
{
    // While the fields are still there that the focus leaves.
    hide();
}

void TargetTimeSheet::connectControls()
{
    connect(_ui->_targetCalendar, &QCalendarWidget::selectionChanged, this,
            [this] { _ui->_targetDateField->setDate(_ui->_targetCalendar->selectedDate()); });
    connect(_ui->_targetDateField, &QDateTimeEdit::dateChanged, _ui->_targetCalendar,
            &QCalendarWidget::setSelectedDate);
    connect(_ui->_targetDateField, &QDateTimeEdit::dateTimeChanged, this,
            &TargetTimeSheet::showDistance);
    connect(qApp, &QApplication::focusChanged, this,
            [this](const QWidget *, const QWidget *now) { focusChanged(now); });
    connect(_ui->_targetButtons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(_ui->_targetButtons, &QDialogButtonBox::rejected, this, &QDialog::reject);
}

void TargetTimeSheet::setVisible(bool visible)
{
    const bool opens = visible && !isVisible();
    QDialog::setVisible(visible);
    if (!opens)
        return;
    _ui->_targetDateField->setFocus();
    _ui->_targetDateField->setSelectedSection(QDateTimeEdit::HourSection);
    _selectsHourOnFocus = !_ui->_targetDateField->hasFocus();
}

void TargetTimeSheet::showEvent(QShowEvent *event)
{
    constexpr double secondsBetweenUpdates = 1.0;
    QDialog::showEvent(event);
    showDistance();
    _distanceTimer.startRepeating(secondsBetweenUpdates);
}

void TargetTimeSheet::hideEvent(QHideEvent *event)
{
    _distanceTimer.invalidate();
    QDialog::hideEvent(event);
}

void TargetTimeSheet::focusChanged(const QWidget *now)
{
    // Select the hour again: on receiving the focus, the field selects its first section.
    if (now == _ui->_targetDateField && std::exchange(_selectsHourOnFocus, false))
        _ui->_targetDateField->setSelectedSection(QDateTimeEdit::HourSection);
}

void TargetTimeSheet::showDistance()
{
    // Count from whole seconds, as clocks show them, so that a date an hour away reads “in 1 h”.
    const QDateTime now = inWholeSeconds(Service<Clock>::current().calendarNow());
    _ui->_targetDistance->setText(TimeDistance::text(now.secsTo(dateValue())));
}

void TargetTimeSheet::setMinDate(const QDateTime &date)
{
    _ui->_targetDateField->setMinimumDateTime(inWholeSeconds(date));
    _ui->_targetCalendar->setMinimumDate(date.date());
}

QDateTime TargetTimeSheet::dateValue() const
{
    return _ui->_targetDateField->dateTime();
}

void TargetTimeSheet::setDateValue(const QDateTime &date)
{
    _ui->_targetDateField->setDateTime(inWholeSeconds(date));
}
