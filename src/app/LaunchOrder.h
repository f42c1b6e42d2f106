#pragma once

#include <QString>

#include <array>
#include <optional>

/// What somebody who launches the program wants of it: from a menu of the desktop, the icon's menu
/// or the command line.
enum class LaunchOrder {
    /// Nothing in particular: opens as the preferences say, or comes to the front.
    Activate,
    NewTimer,
    StartAll,
    Preferences,
    Converter,
};

/// An order that has a name, as in the desktop entry, and an option of that name.
struct NamedLaunchOrder
{
    LaunchOrder order;
    /// "new-timer"
    const char *name;
    /// What the help of the command line says of it; to be translated.
    const char *description;
};

/// Every order but that to activate.
inline constexpr std::array kNamedLaunchOrders{
    NamedLaunchOrder{LaunchOrder::NewTimer, "new-timer", QT_TR_NOOP("Open a new timer.")},
    NamedLaunchOrder{LaunchOrder::StartAll, "start-all", QT_TR_NOOP("Start every timer.")},
    NamedLaunchOrder{LaunchOrder::Preferences, "preferences", QT_TR_NOOP("Show the preferences.")},
    NamedLaunchOrder{LaunchOrder::Converter, "converter", QT_TR_NOOP("Show the unit converter.")},
};

/// The name of the order; empty for the one to activate.
[[nodiscard]] QString nameOf(LaunchOrder order);

/// The order of this name: that to activate for the empty one, nothing for one that nobody knows.
[[nodiscard]] std::optional<LaunchOrder> launchOrderNamed(const QString &name);
