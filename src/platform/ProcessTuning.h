#pragma once

/// Makes the process do with less memory and fewer wake-ups. Called once, before the application
/// object is made.
void tuneProcess();

/// Gives memory that is free back to the system; a millisecond's work.
void returnFreeMemory();
