#pragma once

#include <QSet>
#include <QString>

class QObject;

/// Keeps the screen from going blank, for example while a timer fills it. A desktop that does not
/// support this is not reported. Main thread.
class ScreenBlanking
{
public:
    ScreenBlanking() = default;
    virtual ~ScreenBlanking() = default;
    Q_DISABLE_COPY_MOVE(ScreenBlanking)

    /// Keeps the screen from going blank until the asker calls release(), which it must do. The
    /// asker is only an identity. The desktop may show the reason to the user. A repeated call has
    /// no effect.
    void inhibit(const QObject &asker, const QString &reason);

    /// Ends the asker's request. After the last one the screen may go blank. A repeated call has no
    /// effect.
    void release(const QObject &asker);

protected:
    /// Called for the first asker.
    virtual void begin(const QString &reason) = 0;
    /// Called when the last asker has released it.
    virtual void end() = 0;

private:
    QSet<const QObject *> _askers;
};
