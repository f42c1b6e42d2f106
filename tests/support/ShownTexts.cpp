#include "support/ShownTexts.h"

#include "controls/DisplayLabel.h"

#include <QAbstractItemView>
#include <QAccessible>
#include <QAction>
#include <QApplication>
#include <QCalendarWidget>
#include <QComboBox>
#include <QMenu>
#include <QMetaProperty>
#include <QTabWidget>
#include <QTextBlock>
#include <QTextDocumentFragment>
#include <QTextEdit>

#include <array>

namespace
{
/// The properties whose values are shown, of any kind of object.
constexpr std::array kProperties{"accessibleDescription",
                                 "accessibleName",
                                 "playText",
                                 "placeholderText",
                                 "prefix",
                                 "specialValueText",
                                 "statusTip",
                                 "stopText",
                                 "suffix",
                                 "text",
                                 "title",
                                 "toolTip",
                                 "whatsThis",
                                 "windowTitle"};

constexpr std::array kRoles{Qt::DisplayRole, Qt::ToolTipRole, Qt::AccessibleTextRole,
                            Qt::AccessibleDescriptionRole};

/// The widget's class and name, and those of the nearest parent with a name.
QString placeOf(const QObject &object)
{
    QString place = QString::fromLatin1(object.metaObject()->className());
    for (const QObject *each = &object; each; each = each->parent()) {
        if (!each->objectName().isEmpty() && !each->objectName().startsWith(QLatin1String("qt_")))
            return place + QLatin1Char(' ') + each->objectName();
    }
    return place;
}

QString plain(const QString &text)
{
    return Qt::mightBeRichText(text) ? QTextDocumentFragment::fromHtml(text).toPlainText() : text;
}

/// The names and numbers in a calendar are those of the user's locale.
bool belongsToCalendar(const QWidget &widget)
{
    for (const QWidget *each = widget.parentWidget(); each; each = each->parentWidget()) {
        if (qobject_cast<const QCalendarWidget *>(each))
            return true;
    }
    return false;
}
} // namespace

void ShownTexts::gather()
{
    const QWidgetList widgets = QApplication::allWidgets();
    for (QWidget *each : widgets) {
        if (!belongsToCalendar(*each))
            gatherFrom(*each);
    }
}

void ShownTexts::add(const QString &text, const QString &place)
{
    const QString shown = plain(text).trimmed();
    if (!shown.isEmpty() && !_places.contains(shown))
        _places.insert(shown, place);
}

void ShownTexts::gatherFrom(QWidget &widget)
{
    const QString place = placeOf(widget);
    gatherProperties(widget, place);
    gatherAccessible(widget, place);
    gatherParts(widget, place);
    const QList<QAction *> actions = widget.actions();
    for (const QAction *action : actions)
        gatherProperties(*action, QStringLiteral("action of ") + place);
}

void ShownTexts::gatherProperties(const QObject &object, const QString &place)
{
    for (const char *name : kProperties) {
        const int index = object.metaObject()->indexOfProperty(name);
        if (index >= 0)
            add(object.metaObject()->property(index).read(&object).toString(),
                place + QStringLiteral(", ") + QString::fromLatin1(name));
    }
}

void ShownTexts::gatherAccessible(QWidget &widget, const QString &place)
{
    const QAccessibleInterface *interface = QAccessible::queryAccessibleInterface(&widget);
    if (!interface)
        return;
    add(interface->text(QAccessible::Name), place + QStringLiteral(", name"));
    add(interface->text(QAccessible::Description), place + QStringLiteral(", description"));
}

void ShownTexts::gatherParts(QWidget &widget, const QString &place)
{
    const QAbstractItemModel *items = nullptr;
    if (const auto *label = qobject_cast<DisplayLabel *>(&widget))
        add(label->text(), place);
    else if (const auto *box = qobject_cast<QComboBox *>(&widget))
        items = box->model();
    else if (const auto *view = qobject_cast<QAbstractItemView *>(&widget))
        items = view->model();
    for (int row = 0; items != nullptr && row < items->rowCount(); ++row) {
        for (const int role : kRoles)
            add(items->index(row, 0).data(role).toString(), place + QStringLiteral(", item"));
    }
    if (const auto *tabs = qobject_cast<QTabWidget *>(&widget)) {
        for (int index = 0; index < tabs->count(); ++index)
            add(tabs->tabText(index), place + QStringLiteral(", tab"));
    }
    if (const auto *text = qobject_cast<QTextEdit *>(&widget)) {
        for (QTextBlock block = text->document()->begin(); block.isValid(); block = block.next())
            add(block.text(), place + QStringLiteral(", line"));
    }
}
