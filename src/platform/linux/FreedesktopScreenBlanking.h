#pragma once

#include "base/ScreenBlanking.h"

#include <QObject>

#include <memory>

class BusNameWatch;
class QDBusMessage;

/// Asks the desktop over the session bus: its screen saver, or else the portal. The X server, which
/// blanks the screen itself where neither is there or listens, is told in any case.
///
/// Calls are sent and never waited for. What is granted when it is no longer wanted is given back
/// at once. A screen saver that is restarted is asked again.
class FreedesktopScreenBlanking final : public QObject, public ScreenBlanking
{
    Q_OBJECT

public:
    FreedesktopScreenBlanking();
    ~FreedesktopScreenBlanking() override;

protected:
    void begin(const QString &reason) override;
    void end() override;

private:
    /// Whether the bus may start a service for a question. Not again and again: it may be one that
    /// dies of it.
    enum class Start { No, IfNeeded };

    void watch();
    void ask(std::size_t way, Start start);
    void answered(std::size_t way, const QDBusMessage &answer);
    void screenSaverAppeared();
    void giveBack();

    bool _wanted = false;
    bool _asking = false;
    /// Whether a screen saver has come since the question that is under way was put.
    bool _appeared = false;
    QString _reason;
    /// What gives back what has been granted.
    std::unique_ptr<QDBusMessage> _return;
    std::unique_ptr<BusNameWatch> _watch;
};
