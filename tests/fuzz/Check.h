#pragma once

#include <cstdio>
#include <cstdlib>

/// Aborts if a promise does not hold. The fuzzer then saves the input as a crash.
inline void check(bool promise, const char *what)
{
    if (promise)
        return;
    std::fprintf(stderr, "broken promise: %s\n", what);
    std::abort();
}
