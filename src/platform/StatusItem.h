#pragma once

#include "platform/StatusMenu.h"

#include <QColor>
#include <QIcon>
#include <QPointer>

#include <functional>

/// A text with its attributes.
struct StatusTitle
{
    QString text;
    QColor color;
    /// In points, of the system's font.
    double fontSize = 15;

    [[nodiscard]] friend bool operator==(const StatusTitle &, const StatusTitle &) = default;
};

/// The program's item among the status items of the desktop.
///
/// The item is visible while it has an image or a title. The platform is told only of values that
/// differ from the previous ones. The desktop may not show status items, or only later; callers do
/// not learn of that. Main thread.
class StatusItem
{
public:
    StatusItem() = default;
    virtual ~StatusItem() = default;
    Q_DISABLE_COPY_MOVE(StatusItem)

    [[nodiscard]] const QIcon &image() const { return _image; }
    /// Square; a null icon for none.
    void setImage(const QIcon &image);

    [[nodiscard]] const StatusTitle &attributedTitle() const { return _title; }
    void setAttributedTitle(const StatusTitle &title);
    /// Replaces the text and leaves its attributes.
    void setTitle(const QString &text);

    /// The name of the program with the text of a title, where there is one.
    [[nodiscard]] static QString titleWithProgram(const QString &text);

    [[nodiscard]] bool isEmpty() const { return _image.isNull() && _title.text.isEmpty(); }

    /// The object that a press acts on; null if none is set or it has been destroyed.
    [[nodiscard]] QObject *target() const { return _target; }
    /// Sets what a left click does while there is no menu and the target exists.
    void setTarget(QObject *target, std::function<void()> action);

    /// The menu that a press opens; null for none.
    [[nodiscard]] StatusMenu *menu() const { return _menu; }
    void setMenu(StatusMenu *menu);

    /// Runs the action of the target, as a left click does while there is no menu.
    void sendAction() const;

protected:
    /// Called when the image, the title or the menu has changed.
    virtual void changed() = 0;

private:
    QIcon _image;
    StatusTitle _title;
    QPointer<QObject> _target;
    std::function<void()> _action;
    QPointer<StatusMenu> _menu;
};
