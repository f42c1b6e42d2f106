#pragma once

#include <QtGlobal>

/// While this object lives, Qt's failure to reach a display ends the program with exit status 1 and
/// one line on the standard error. Without it Qt aborts, and the system keeps a dump of the
/// program: the session bus may start the program in a session that has no display. Main thread.
class MissingDisplay final
{
public:
    MissingDisplay();
    ~MissingDisplay();
    Q_DISABLE_COPY_MOVE(MissingDisplay)
};
