#include "audio/BackEnd.h"

#include "audio/linux/PulseServer.h"

const char *soundBackEnd()
{
    // Without a name, or when the named one fails, cubeb tries all that it knows; and trying JACK
    // without a JACK server leaves files in shared memory. So this names only a back end that is
    // known to open. (ALSA always does; a missing device shows later.)
    return PulseServer::answers() ? "pulse" : "alsa";
}
