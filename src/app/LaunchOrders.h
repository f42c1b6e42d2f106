#pragma once

#include "app/CommandLine.h"
#include "base/ClockTimer.h"

#include <QCoreApplication>
#include <QList>
#include <QObject>

class SingleInstance;
class WufferController;

/// Carries out the orders of all launches: the one that started the program, and those that arrive
/// while it runs.
class LaunchOrders final : public QObject
{
    Q_OBJECT

public:
    LaunchOrders(WufferController &controller, SingleInstance &instance);

    /// Opens what the command line asks for. A program that the session bus started opens nothing
    /// until the bus delivers the first order. Without one it ends after ten seconds, because it
    /// has no window to show that it runs.
    void begin(const CommandLine &commandLine);

private:
    void asked(const QString &action);
    [[nodiscard]] bool isTooMany(LaunchOrder order) const;
    void carryOutPending();
    void carryOut(LaunchOrder order);

    WufferController &_controller;
    SingleInstance &_instance;
    bool _hasBegun = false;
    /// Orders that are still to be carried out; only new timers may be in it more than once.
    QList<LaunchOrder> _pending;
    ClockTimer _gatherTimer{[this] { carryOutPending(); }};
    ClockTimer _firstOrderTimer{[] { QCoreApplication::quit(); }};
};
