#pragma once

#include "support/TestMain.h"

#include <QProcess>

/// A session bus for this test program alone, which runs while this object lives. Create it before
/// the application object.
class PrivateBus final
{
public:
    PrivateBus()
    {
        _daemon.start(QStringLiteral("dbus-daemon"),
                      {QStringLiteral("--session"), QStringLiteral("--print-address"),
                       QStringLiteral("--nofork"), QStringLiteral("--nopidfile")});
        if (!_daemon.waitForReadyRead())
            qFatal("dbus-daemon does not start: %s", qPrintable(_daemon.errorString()));
        _address = QString::fromUtf8(_daemon.readLine()).trimmed();
        qputenv("DBUS_SESSION_BUS_ADDRESS", _address.toUtf8());
    }
    ~PrivateBus()
    {
        _daemon.kill();
        _daemon.waitForFinished();
    }
    Q_DISABLE_COPY_MOVE(PrivateBus)

    [[nodiscard]] QString address() const { return _address; }
    [[nodiscard]] pid_t processId() const { return static_cast<pid_t>(_daemon.processId()); }

private:
    QProcess _daemon;
    QString _address;
};

/// The surroundings of a test class that uses the session bus: a private bus and the program's
/// application object on it.
class OnPrivateBus final
{
public:
    OnPrivateBus(int &argc, char **argv) : _application(argc, argv) {}

    [[nodiscard]] const PrivateBus &bus() const { return _bus; }

private:
    const PrivateBus _bus;
    const InApplication _application;
};
