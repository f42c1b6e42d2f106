#pragma once

#include "base/ScreenBlanking.h"

#include <QObject>

#include <memory>

class BusNameWatch;
class QDBusMessage;

/// Asks the screen saver of the desktop, or else the portal, over the session bus to leave the
/// screen on. Also suspends the screen saver of the X server, which blanks the screen itself if the
/// desktop does not see to that.
///
/// Calls never wait for their answers. A grant that arrives when it is no longer wanted is returned
/// at once. A screen saver that restarts is asked again, and so is that of a
/// new bus.
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
    /// Whether the bus may start the service for a call. Not for repeated calls, because the
    /// service may crash each time.
    enum class Start { No, IfNeeded };

    void watch();
    void ask(std::size_t inhibitor, Start start);
    void answered(std::size_t inhibitor, const QDBusMessage &answer);
    void screenSaverAppeared();
    void busFound();
    void giveBack();

    bool _wanted = false;
    bool _asking = false;
    /// Whether a screen saver has appeared on the bus since the pending call was sent.
    bool _appeared = false;
    QString _reason;
    /// The call that returns the grant; null without a grant.
    std::unique_ptr<QDBusMessage> _returningCall;
    std::unique_ptr<BusNameWatch> _watch;
};
