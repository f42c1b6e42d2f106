#include "base/Log.h"

Q_LOGGING_CATEGORY(wufferLog, "wuffer")
