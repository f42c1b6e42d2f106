#pragma once

#include <QSet>
#include <QString>

class QObject;

/// Keeps the screen from going blank while somebody shows what is to be read from afar. A desktop
/// that cannot be asked for that is not reported. Main thread.
class ScreenBlanking
{
public:
    ScreenBlanking() = default;
    virtual ~ScreenBlanking() = default;
    Q_DISABLE_COPY_MOVE(ScreenBlanking)

    /// Keeps the screen from going blank until release() for the same asker, who is only an
    /// identity and must ask for it. The reason is for the user. Harmless when repeated.
    void inhibit(const QObject &asker, const QString &reason);

    /// Takes that back. The screen may go blank when it was the last; harmless when repeated.
    void release(const QObject &asker);

protected:
    /// Called when the first has asked.
    virtual void begin(const QString &reason) = 0;
    /// Called when the last has released it.
    virtual void end() = 0;

private:
    QSet<const QObject *> _askers;
};
