#pragma once

#include <QLoggingCategory>

/// The category of the program's few log messages.
Q_DECLARE_LOGGING_CATEGORY(wufferLog)
