#include "audio/BackEnd.h"

const char *soundBackEnd()
{
    return nullptr;
}
