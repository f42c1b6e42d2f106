#pragma once

#include <QString>

#include <array>
#include <optional>

/// What a launch of the program asks for. The order comes from a menu of the desktop, the icon's
/// menu or the command line.
enum class LaunchOrder {
    /// No order: a program that starts opens what the preferences say, a running one comes to the
    /// front.
    Activate,
    NewTimer,
    StartAll,
    Preferences,
    Converter,
};

/// An order with its name, which is both its action in the desktop entry and its option.
struct NamedLaunchOrder
{
    LaunchOrder order;
    /// "new-timer"
    const char *name;
    /// The description of the option in --help; to be translated in the context
    /// "CommandLine".
    const char *description;
};

/// Every order except Activate.
inline constexpr std::array kNamedLaunchOrders{
    NamedLaunchOrder{LaunchOrder::NewTimer, "new-timer",
                     QT_TRANSLATE_NOOP("CommandLine", "Open a new timer.")},
    NamedLaunchOrder{LaunchOrder::StartAll, "start-all",
                     QT_TRANSLATE_NOOP("CommandLine", "Start every timer.")},
    NamedLaunchOrder{LaunchOrder::Preferences, "preferences",
                     QT_TRANSLATE_NOOP("CommandLine", "Show the preferences.")},
    NamedLaunchOrder{LaunchOrder::Converter, "converter",
                     QT_TRANSLATE_NOOP("CommandLine", "Show the unit converter.")},
};

/// The name of the order; empty for Activate.
[[nodiscard]] QString nameOf(LaunchOrder order);

/// The order of this name: Activate for an empty name, nothing for an unknown one.
[[nodiscard]] std::optional<LaunchOrder> launchOrderNamed(const QString &name);
