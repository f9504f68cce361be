#pragma once

#include <cstdio>
#include <cstdlib>
#include <string>

/// Ends the program, which is how a fuzz target reports an input, unless the condition holds.
inline void require(bool condition, const std::string &complaint)
{
    if (!condition) {
        std::fprintf(stderr, "%s\n", complaint.c_str());
        std::abort();
    }
}
