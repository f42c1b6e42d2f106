#pragma once

#include <QKeySequence>
#include <QList>
#include <QString>

#include <vector>

/// An item of a menu and the keys that it answers to.
struct MenuKeys
{
    QString menu;
    QString item;
    QList<QKeySequence> keys;
};

/// One page of the help.
struct HelpPage
{
    /// What links to the page call it, without ".html".
    QString name;
    QString title;
    QString html;
};

/// The pages of the help in the order in which they are listed. One of them lists the keys of the
/// menus, which differ from desktop to desktop; so they are taken from the menus themselves.
[[nodiscard]] std::vector<HelpPage> helpPages(const std::vector<MenuKeys> &menuKeys);
