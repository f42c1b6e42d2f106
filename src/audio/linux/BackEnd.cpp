#include "audio/BackEnd.h"

#include "audio/linux/PulseServer.h"

const char *soundBackEnd()
{
    // Left to itself the library tries each way that it knows, also when the one it was told fails;
    // and to ask for a JACK server leaves files in shared memory when there is none. So only a way
    // is named that is known to be open. (ALSA always is; the library tells later if there is no
    // device.)
    return PulseServer::answers() ? "pulse" : "alsa";
}
