#include "support/TextContrasts.h"

#include "base/Contrast.h"
#include "controls/DisplayLabel.h"
#include "controls/LegibleWhenDisabled.h"

#include <QAbstractItemModel>
#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QCheckBox>
#include <QComboBox>
#include <QHash>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QRadioButton>
#include <QStyleOptionButton>
#include <QStyleOptionComboBox>
#include <QTabBar>
#include <QTextEdit>
#include <QToolButton>

#include <algorithm>

namespace
{
constexpr int kEnlargement = 4;
/// Fewer points of a colour than this are no stroke of a letter.
constexpr int kLeastPoints = 6;
/// How many characters of a text name its place.
constexpr int kLongestText = 40;

/// A text of a widget, and where it is in the widget's own coordinates.
struct Room
{
    QRect place;
    QString text;
};
using Rooms = QList<Room>;

Rooms ofButton(const QAbstractButton &button, QStyle::SubElement element)
{
    QStyleOptionButton option;
    option.initFrom(&button);
    return {{button.style()->subElementRect(element, &option, &button), button.text()}};
}

Rooms ofToolButton(const QToolButton &button)
{
    constexpr int frame = 4;
    return {{button.rect().adjusted(frame, frame, -frame, -frame), button.text()}};
}

Rooms ofComboBox(const QComboBox &box)
{
    QStyleOptionComboBox option;
    option.initFrom(&box);
    option.editable = box.isEditable();
    option.frame = true;
    const QRect room = box.style()->subControlRect(QStyle::CC_ComboBox, &option,
                                                   QStyle::SC_ComboBoxEditField, &box);
    return box.isEditable() ? Rooms() : Rooms{{room.adjusted(2, 2, -2, -2), box.currentText()}};
}

Rooms ofActions(const QWidget &menu)
{
    Rooms rooms;
    for (QAction *action : menu.actions()) {
        if (!action->isEnabled() || action->isSeparator() || !action->isVisible())
            continue;
        if (const auto *bar = qobject_cast<const QMenuBar *>(&menu))
            rooms << Room{bar->actionGeometry(action).adjusted(2, 2, -2, -2), action->text()};
        else
            rooms << Room{
                static_cast<const QMenu &>(menu).actionGeometry(action).adjusted(24, 2, -8, -2),
                action->text()};
    }
    return rooms;
}

Rooms ofTabs(const QTabBar &bar)
{
    Rooms rooms;
    for (int index = 0; index < bar.count(); ++index)
        rooms << Room{bar.tabRect(index).adjusted(6, 6, -6, -6), bar.tabText(index)};
    return rooms;
}

Rooms ofLineEdit(const QLineEdit &field)
{
    constexpr int frame = 4;
    const QString text = field.displayText();
    return {{field.rect().adjusted(frame, frame, -frame, -frame),
             text.isEmpty() ? field.placeholderText() : text}};
}

Rooms ofItems(const QAbstractItemView &view)
{
    Rooms rooms;
    const QAbstractItemModel &model = *view.model();
    for (int row = 0; row < model.rowCount(view.rootIndex()); ++row) {
        for (int column = 0; column < model.columnCount(view.rootIndex()); ++column) {
            const QModelIndex index = model.index(row, column, view.rootIndex());
            if (model.flags(index).testFlag(Qt::ItemIsEnabled))
                rooms << Room{view.visualRect(index), index.data().toString()};
        }
    }
    return rooms;
}

Rooms ofContents(const QWidget &viewport)
{
    const QWidget *area = viewport.parentWidget();
    const auto *text = qobject_cast<const QTextEdit *>(area);
    if (text && text->viewport() == &viewport)
        return {{viewport.rect(), text->toPlainText()}};
    const auto *view = qobject_cast<const QAbstractItemView *>(area);
    return view && view->viewport() == &viewport ? ofItems(*view) : Rooms();
}

Rooms allRoomsOf(const QWidget &widget)
{
    if (const auto *label = qobject_cast<const DisplayLabel *>(&widget))
        return {{widget.rect(), label->text()}};
    if (const auto *label = qobject_cast<const QLabel *>(&widget))
        return {{widget.rect(), label->text()}};
    if (const auto *field = qobject_cast<const QLineEdit *>(&widget))
        return ofLineEdit(*field);
    if (const auto *box = qobject_cast<const QCheckBox *>(&widget))
        return ofButton(*box, QStyle::SE_CheckBoxContents);
    if (const auto *button = qobject_cast<const QRadioButton *>(&widget))
        return ofButton(*button, QStyle::SE_RadioButtonContents);
    if (const auto *button = qobject_cast<const QPushButton *>(&widget))
        return ofButton(*button, QStyle::SE_PushButtonContents);
    if (const auto *button = qobject_cast<const QToolButton *>(&widget))
        return ofToolButton(*button);
    if (const auto *combo = qobject_cast<const QComboBox *>(&widget))
        return ofComboBox(*combo);
    if (qobject_cast<const QMenu *>(&widget) || qobject_cast<const QMenuBar *>(&widget))
        return ofActions(widget);
    if (const auto *bar = qobject_cast<const QTabBar *>(&widget))
        return ofTabs(*bar);
    return ofContents(widget);
}

Rooms roomsOf(const QWidget &widget)
{
    Rooms rooms = allRoomsOf(widget);
    rooms.removeIf([](const Room &room) { return room.text.trimmed().isEmpty(); });
    return rooms;
}

bool isJudged(const QWidget &widget)
{
    return widget.isVisible() && (widget.isEnabled() || widget.findChild<LegibleWhenDisabled *>());
}

double neededBy(const QFont &font)
{
    constexpr double large = 18;
    constexpr double largeIfBold = 14;
    return font.pointSizeF() >= (font.bold() ? largeIfBold : large) ? Contrast::kLargeText
                                                                    : Contrast::kText;
}

/// How many points of each colour there are.
QHash<QRgb, int> colorsIn(const QImage &picture, const QRect &room)
{
    QHash<QRgb, int> points;
    for (int y = room.top(); y <= room.bottom(); ++y) {
        const auto *line = reinterpret_cast<const QRgb *>(picture.constScanLine(y));
        const QRgb *const end = line + room.right() + 1;
        // Most neighbours have the same colour.
        for (const QRgb *run = line + room.left(); run < end;) {
            const QRgb *const next =
                std::find_if(run, end, [run](QRgb other) { return other != *run; });
            points[*run] += static_cast<int>(next - run);
            run = next;
        }
    }
    return points;
}

QImage pictureOf(QWidget &window)
{
    QImage picture(window.size() * kEnlargement, QImage::Format_RGB32);
    picture.setDevicePixelRatio(kEnlargement);
    // The caret has the greatest contrast of all.
    if (window.focusWidget())
        window.focusWidget()->clearFocus();
    window.render(&picture);
    return picture;
}
} // namespace

TextContrasts::Text TextContrasts::measured(const QImage &picture, const QRect &part)
{
    const QHash<QRgb, int> points = colorsIn(picture, part & picture.rect());
    Text text;
    int most = 0;
    for (const auto [color, count] : points.asKeyValueRange()) {
        if (count > most) {
            most = count;
            text.ground = QColor(color);
        }
    }
    for (const auto [color, count] : points.asKeyValueRange()) {
        const double contrast = Contrast::ratio(Rgb::of(QColor(color)), Rgb::of(text.ground));
        if (count >= kLeastPoints && contrast > text.contrast) {
            text.contrast = contrast;
            text.ink = QColor(color);
        }
    }
    return text;
}

QList<TextContrasts::Text> TextContrasts::of(QWidget &window)
{
    QList<Text> texts;
    const QImage picture = pictureOf(window);
    const QList<QWidget *> widgets = window.findChildren<QWidget *>() << &window;
    for (const QWidget *widget : widgets) {
        if (widget->window() != &window || !isJudged(*widget))
            continue;
        for (const Room &room : roomsOf(*widget)) {
            const QRect seen = room.place & widget->visibleRegion().boundingRect();
            const QRect place(widget->mapTo(&window, seen.topLeft()) * kEnlargement,
                              seen.size() * kEnlargement);
            if (seen.isEmpty())
                continue;
            Text text = measured(picture, place);
            text.place = QString::fromLatin1(widget->metaObject()->className()) + QLatin1Char(' ') +
                         widget->objectName() +
                         QStringLiteral(" “%1”").arg(room.text.simplified().left(kLongestText));
            text.needed = neededBy(widget->font());
            texts << text;
        }
    }
    return texts;
}

QString TextContrasts::unreadable(QWidget &window)
{
    QString lines;
    for (const Text &text : of(window)) {
        if (text.contrast < text.needed)
            lines += QStringLiteral("%1: %2 (%3 on %4)\n")
                         .arg(text.place, QString::number(text.contrast, 'f', 2), text.ink.name(),
                              text.ground.name());
    }
    return lines;
}
