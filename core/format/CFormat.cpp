#include "format/CFormat.h"

#include <clocale>
#include <cstdarg>
#include <cstdio>

namespace vexel {

namespace {

// The "C" locale for numbers, so that a host program that switched
// LC_NUMERIC (the desktop app's toolkit may) still gets "." as the decimal point.
locale_t numericC()
{
    static const locale_t locale = ::newlocale(LC_NUMERIC_MASK, "C", static_cast<locale_t>(nullptr));
    return locale;
}

// Switches the calling thread to the "C" number locale for its lifetime.
class CNumbers {
public:
    CNumbers()
        : m_previous(numericC() != nullptr ? ::uselocale(numericC()) : nullptr)
    {
    }
    ~CNumbers()
    {
        if (m_previous != nullptr)
            ::uselocale(m_previous);
    }
    CNumbers(const CNumbers&) = delete;
    CNumbers& operator=(const CNumbers&) = delete;

private:
    locale_t m_previous;
};

} // namespace

std::string cformat(const char* format, ...)
{
    const CNumbers numbers;
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
