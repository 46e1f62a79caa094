#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

// The bytes libFuzzer hands a target, as text.
inline std::string_view fuzzText(const uint8_t* data, size_t size)
{
    return {reinterpret_cast<const char*>(data), size};
}

// Aborts so that libFuzzer records the input when a parser's promise breaks.
inline void require(bool promise)
{
    if (!promise)
        std::abort();
}
