#pragma once

#include "base/Date.h"

#include <QColor>
#include <QString>

#include <optional>

/// What the rules for running timers want to know of a timer, and nothing else.
struct PlainTimer final
{
    Date end = Date::distantFuture();
    QString name = QStringLiteral("Tea");
    QString status = QStringLiteral("1h 2m 5s");

    [[nodiscard]] static bool isRunning() { return true; }
    [[nodiscard]] std::optional<Date> targetDate() const { return end; }
    [[nodiscard]] const QString &title() const { return name; }
    [[nodiscard]] const QString &statusString() const { return status; }
    [[nodiscard]] static QColor currentTextColor() { return Qt::black; }
};
