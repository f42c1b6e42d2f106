#pragma once

#include <QtGlobal>

#include <unistd.h>

/// Runs the test as an ordinary user while this object lives, even if root has started it: file
/// permissions do not bind root.
class OrdinaryUser final
{
public:
    OrdinaryUser()
    {
        constexpr uid_t nobody = 65534;
        if (_before == 0 && seteuid(nobody) != 0)
            qFatal("cannot become an ordinary user");
    }
    ~OrdinaryUser()
    {
        if (_before == 0 && seteuid(_before) != 0)
            qFatal("cannot become root again");
    }
    Q_DISABLE_COPY_MOVE(OrdinaryUser)

private:
    const uid_t _before = geteuid();
};
