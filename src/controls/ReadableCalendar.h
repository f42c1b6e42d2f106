#pragma once

#include <QObject>

class QCalendarWidget;

/// Draws the days of a calendar in colours that can be read in every theme: those of the months
/// before and after, which are as faint as disabled texts, and those of the weekend, whose red
/// suits few themes.
class ReadableCalendar final : public QObject
{
    Q_OBJECT

public:
    /// Belongs to the calendar.
    explicit ReadableCalendar(QCalendarWidget &calendar);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void adjust();
    void adjustOtherMonths();
    void adjustWeekend();

    QCalendarWidget &_calendar;
};
