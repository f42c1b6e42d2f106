#include "controls/ReadableCalendar.h"

#include "controls/ReadableColor.h"

#include <QCalendarWidget>
#include <QEvent>
#include <QTextCharFormat>

namespace
{
/// How much of their ground the colour of the days of other months has in it.
constexpr double kPaleness = 0.35;
} // namespace

ReadableCalendar::ReadableCalendar(QCalendarWidget &calendar) :
    QObject(&calendar), _calendar(calendar)
{
    calendar.installEventFilter(this);
    adjust();
}

bool ReadableCalendar::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::PaletteChange)
        adjust();
    return QObject::eventFilter(watched, event);
}

void ReadableCalendar::adjust()
{
    adjustOtherMonths();
    adjustWeekend();
}

void ReadableCalendar::adjustOtherMonths()
{
    const QPalette &theme = _calendar.palette();
    const QColor ground = theme.color(QPalette::Active, QPalette::Base);
    const QColor pale = mixed(theme.color(QPalette::Active, QPalette::Text), ground, kPaleness);
    QPalette palette;
    palette.setColor(QPalette::Disabled, QPalette::Text, readable(pale, ground));
    _calendar.setPalette(palette);
}

void ReadableCalendar::adjustWeekend()
{
    QColor ink = Qt::red;
    // What the days to choose, the names of the days and the days gone by stand on.
    for (const QPalette::ColorRole ground :
         {QPalette::Base, QPalette::AlternateBase, QPalette::Window})
        ink = readable(ink, _calendar.palette().color(QPalette::Active, ground));
    for (const Qt::DayOfWeek day : {Qt::Saturday, Qt::Sunday}) {
        QTextCharFormat format = _calendar.weekdayTextFormat(day);
        format.setForeground(ink);
        _calendar.setWeekdayTextFormat(day, format);
    }
}
