#pragma once

#include <QProcess>

/// A session bus that only this test program knows of, for as long as this object lives. To be
/// made before the application object.
class SessionBus final
{
public:
    SessionBus()
    {
        _daemon.start(QStringLiteral("dbus-daemon"),
                      {QStringLiteral("--session"), QStringLiteral("--print-address"),
                       QStringLiteral("--nofork"), QStringLiteral("--nopidfile")});
        if (!_daemon.waitForReadyRead())
            qFatal("there is no dbus-daemon: %s", qPrintable(_daemon.errorString()));
        _address = QString::fromUtf8(_daemon.readLine()).trimmed();
        qputenv("DBUS_SESSION_BUS_ADDRESS", _address.toUtf8());
    }
    ~SessionBus()
    {
        _daemon.kill();
        _daemon.waitForFinished();
    }
    Q_DISABLE_COPY_MOVE(SessionBus)

    [[nodiscard]] QString address() const { return _address; }
    [[nodiscard]] pid_t processId() const { return static_cast<pid_t>(_daemon.processId()); }

private:
    QProcess _daemon;
    QString _address;
};
