#pragma once

#include <cstdio>
#include <cstdlib>
#include <string_view>

// Stops the fuzzer with a message when a property of the readers fails, so
// that the input is kept as a crash and can be replayed.
inline void Require(bool holds, const char* what)
{
    if (holds)
        return;
    std::fprintf(stderr, "property failed: %s\n", what);
    std::abort();
}

inline std::string_view AsBytes(const unsigned char* data, std::size_t size)
{
    return {reinterpret_cast<const char*>(data), size};
}
