#include "format/CFormat.h"

#include <cstdarg>
#include <cstdio>

namespace vexel {

std::string cformat(const char* format, ...)
{
    char small[128];
    va_list args;
    va_start(args, format);
    va_list again;
    va_copy(again, args);
    const int needed = std::vsnprintf(small, sizeof small, format, args);
    va_end(args);
    std::string result;
    if (needed < 0) {
        va_end(again);
        return result;
    }
    if (static_cast<size_t>(needed) < sizeof small) {
        result.assign(small, static_cast<size_t>(needed));
    } else {
        result.resize(static_cast<size_t>(needed) + 1);
        std::vsnprintf(result.data(), result.size(), format, again);
        result.resize(static_cast<size_t>(needed));
    }
    va_end(again);
    return result;
}

} // namespace vexel
