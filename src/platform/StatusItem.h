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

/// The program's place among the status items of the desktop.
///
/// It is there for as long as it lives, but nothing of it shows while it has neither an image nor
/// a title. It keeps what it is given and tells the platform only of what is new. The desktop may
/// have no room for status items, or have it later; none of that is reported. Main thread.
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

    /// Whom a press is meant for; null when there is nobody, also once it is destroyed.
    [[nodiscard]] QObject *target() const { return _target; }
    /// What a press with the left button does while there is no menu, and the target lives.
    void setTarget(QObject *target, std::function<void()> action);

    /// What a press opens; null when there is none.
    [[nodiscard]] StatusMenu *menu() const { return _menu; }
    void setMenu(StatusMenu *menu);

    /// Does what a press with the left button does while there is no menu.
    void sendAction() const;

protected:
    /// What is to be seen of the item has changed.
    virtual void changed() = 0;

private:
    QIcon _image;
    StatusTitle _title;
    QPointer<QObject> _target;
    std::function<void()> _action;
    QPointer<StatusMenu> _menu;
};
