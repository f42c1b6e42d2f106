#include "support/Misfits.h"

#include "controls/DisplayLabel.h"
#include "controls/ElidedLabel.h"

#include <QAbstractSpinBox>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QMenuBar>
#include <QPushButton>
#include <QScrollBar>
#include <QStyleOption>
#include <QTabBar>
#include <QTextEdit>
#include <QToolButton>

namespace
{
/// A text, and what it needs and has.
struct Place
{
    QString text;
    QSize needed;
    QSize room;
};
using Places = QList<Place>;

QSize sizeOf(const QWidget &widget, const QString &text)
{
    return widget.fontMetrics().size(Qt::TextShowMnemonic, text);
}

Places placesIn(const DisplayLabel &label)
{
    // Still easy to read.
    constexpr double leastShare = 0.8;
    return {{label.text(), sizeOf(label, label.text()) * leastShare, label.size()}};
}

Places placesIn(const ElidedLabel &label)
{
    return {{label.text(), label.fontMetrics().size(0, label.text()), label.contentsRect().size()}};
}

Places placesIn(const QLabel &label)
{
    if (label.wordWrap())
        return {{label.text(), {0, label.heightForWidth(label.width())}, label.size()}};
    return {{label.text(), label.sizeHint(), label.size()}};
}

Places placesIn(const QPushButton &button)
{
    QStyleOptionButton option;
    option.initFrom(&button);
    const QRect room =
        button.style()->subElementRect(QStyle::SE_PushButtonContents, &option, &button);
    return {{button.text(), sizeOf(button, button.text()), room.size()}};
}

Places placesIn(const QCheckBox &box)
{
    return {{box.text(), box.sizeHint(), box.size()}};
}

Places placesIn(const QToolButton &button)
{
    const bool showsText = button.icon().isNull() && button.arrowType() == Qt::NoArrow;
    const QString text = showsText ? button.text() : QString();
    return {{text, sizeOf(button, text), button.size()}};
}

Places placesIn(const QComboBox &box)
{
    QStyleOptionComboBox option;
    option.initFrom(&box);
    QRect room = box.style()->subControlRect(QStyle::CC_ComboBox, &option,
                                             QStyle::SC_ComboBoxEditField, &box);
    // Styles leave one pixel free at each side.
    room.adjust(1, 0, -1, 0);
    Places places;
    for (int index = 0; index < box.count(); ++index)
        places.append(
            {box.itemText(index), box.fontMetrics().size(0, box.itemText(index)), room.size()});
    return places;
}

Places placesIn(const QLineEdit &field)
{
    QStyleOptionFrame option;
    option.initFrom(&field);
    option.lineWidth =
        field.hasFrame() ? field.style()->pixelMetric(QStyle::PM_DefaultFrameWidth, &option) : 0;
    QRect room = field.style()->subElementRect(QStyle::SE_LineEditContents, &option, &field);
    // The field leaves two pixels free at each side.
    room = room.marginsRemoved(field.textMargins()).adjusted(2, 0, -2, 0);
    return {{field.placeholderText(), field.fontMetrics().size(0, field.placeholderText()),
             room.size()}};
}

// Widgets of several texts that shrink together, or else get buttons to scroll.

Places placesIn(const QTabBar &bar)
{
    return {{bar.tabText(bar.count() - 1), bar.sizeHint(), bar.size()}};
}

Places placesIn(const QMenuBar &bar)
{
    const QString last = bar.actions().isEmpty() ? QString() : bar.actions().last()->text();
    return {{last, bar.sizeHint(), bar.size()}};
}

Places placesIn(const QAbstractSpinBox &box)
{
    return {{box.text(), box.minimumSizeHint(), box.size()}};
}

Places placesIn(const QListWidget &list)
{
    const QString first = list.count() == 0 ? QString() : list.item(0)->text();
    return {{first, {list.sizeHintForColumn(0), 0}, list.viewport()->size()}};
}

Places placesIn(const QTextEdit &text)
{
    const QScrollBar &bar = *text.horizontalScrollBar();
    const QSize room = text.viewport()->size();
    const int hidden = bar.isVisible() ? bar.maximum() : 0;
    return {
        {text.toPlainText().section(QLatin1Char('\n'), 0, 0), {room.width() + hidden, 0}, room}};
}

/// The first of these classes that the widget has decides.
template<class Class, class... Others> Places placesOf(const QWidget &widget)
{
    if (const auto *own = qobject_cast<const Class *>(&widget))
        return placesIn(*own);
    if constexpr (sizeof...(Others) > 0)
        return placesOf<Others...>(widget);
    return {};
}

bool fits(const Place &place)
{
    return place.text.isEmpty() || place.needed.boundedTo(place.room) == place.needed;
}

QString describe(const QWidget &widget, const Place &place)
{
    return QStringLiteral("“%1” in %2 %3 needs %4 x %5 and has %6 x %7")
        .arg(place.text, QString::fromLatin1(widget.metaObject()->className()), widget.objectName())
        .arg(place.needed.width())
        .arg(place.needed.height())
        .arg(place.room.width())
        .arg(place.room.height());
}
} // namespace

QStringList misfits(const QWidget &window)
{
    QStringList found;
    for (const QWidget *widget : window.findChildren<QWidget *>()) {
        if (!widget->isVisible() || widget->window() != &window)
            continue;
        const Places places = placesOf<DisplayLabel, ElidedLabel, QLabel, QPushButton, QCheckBox,
                                       QToolButton, QComboBox, QLineEdit, QTabBar, QMenuBar,
                                       QAbstractSpinBox, QListWidget, QTextEdit>(*widget);
        for (const Place &place : places) {
            if (!fits(place))
                found << describe(*widget, place);
        }
    }
    return found;
}
