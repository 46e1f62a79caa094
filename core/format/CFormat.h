#pragma once

#include <string>

namespace vexel {

// printf-style formatting into a std::string. Every number that becomes text
// goes through here so that "%.1f" and friends give the C library's exact
// results, independent of any locale the host program may have set.
[[nodiscard]] std::string cformat(const char* format, ...) __attribute__((format(printf, 1, 2)));

} // namespace vexel
