#pragma once

#include <cstdio>
#include <cstdlib>

/// Ends the program when a property does not hold.
inline void Require(bool holds, const char* what)
{
    if (holds)
        return;
    std::fprintf(stderr, "broken: %s\n", what);
    std::abort();
}
