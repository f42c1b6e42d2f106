#pragma once

/// Makes the process need fewer wake-ups. Call it once, before the application object is made.
void tuneProcess();

/// Returns free memory to the system; takes about a millisecond.
void returnFreeMemory();
