#include "platform/ProcessTuning.h"

void tuneProcess() {}

void returnFreeMemory() {}
