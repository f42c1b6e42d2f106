#pragma once

#include <QtGlobal>

#include <unistd.h>

/// Takes the superuser's powers from a test that has them, for as long as this object lives, so
/// that what a file permits means something.
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
            qFatal("cannot become the superuser again");
    }
    Q_DISABLE_COPY_MOVE(OrdinaryUser)

private:
    const uid_t _before = geteuid();
};
