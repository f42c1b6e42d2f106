#pragma once

#include <cstdio>
#include <cstdlib>

/// Ends the fuzzer, which then keeps the input that led here, when a promise does not hold.
inline void check(bool promise, const char *what)
{
    if (promise)
        return;
    std::fprintf(stderr, "broken promise: %s\n", what);
    std::abort();
}
