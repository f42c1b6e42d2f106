#pragma once

#include <QKeySequence>
#include <QList>
#include <QString>

#include <vector>

/// A menu item and its shortcuts.
struct MenuKeys
{
    QString menu;
    QString item;
    QList<QKeySequence> keys;
};

/// One page of the help.
struct HelpPage
{
    /// The file name that links use, without ".html".
    QString name;
    QString title;
    QString html;
};

/// The pages of the help in the order of the list. One page lists the shortcuts of the menus, which
/// differ between desktops and are therefore taken from the menus themselves.
[[nodiscard]] std::vector<HelpPage> helpPages(const std::vector<MenuKeys> &menuKeys);
