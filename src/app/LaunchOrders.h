#pragma once

#include "app/CommandLine.h"
#include "base/ClockTimer.h"

#include <QCoreApplication>
#include <QList>
#include <QObject>

class SingleInstance;
class WufferController;

/// Carries out what the program was launched for, at its start and, while it runs, for everybody
/// who launches it again.
class LaunchOrders final : public QObject
{
    Q_OBJECT

public:
    LaunchOrders(WufferController &controller, SingleInstance &instance);

    /// Opens what the command line asks for. Started by the session bus, it opens nothing until
    /// that has passed on the first order; without one the program ends after ten seconds, because
    /// nobody would know that it is there.
    void begin(const CommandLine &commandLine);

private:
    void asked(const QString &action);
    void carryOutPending();
    void carryOut(LaunchOrder order);

    WufferController &_controller;
    bool _hasBegun = false;
    /// What was asked for in the last moment, each but new timers once.
    QList<LaunchOrder> _pending;
    ClockTimer _soon{[this] { carryOutPending(); }};
    ClockTimer _patience{[] { QCoreApplication::quit(); }};
};
