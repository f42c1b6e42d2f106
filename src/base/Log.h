#pragma once

#include <QLoggingCategory>

/// What the program writes to the system's log. It writes next to nothing.
Q_DECLARE_LOGGING_CATEGORY(wufferLog)
