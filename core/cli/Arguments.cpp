#include "cli/Arguments.h"

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <limits>

namespace vexel::Arguments {

bool takeFlag(std::vector<std::string>& args, std::string_view flag)
{
    const auto before = args.size();
    std::erase(args, std::string(flag));
    return args.size() != before;
}

std::optional<std::string> takeOption(std::vector<std::string>& args, std::initializer_list<std::string_view> spellings)
{
    const auto found = std::find_if(args.begin(), args.end(),
        [&](const std::string& arg) { return std::find(spellings.begin(), spellings.end(), arg) != spellings.end(); });
    if (found == args.end() || found + 1 == args.end())
        return std::nullopt;
    std::string value = *(found + 1);
    args.erase(found, found + 2);
    return value;
}

std::optional<long long> parseInteger(const std::string& text)
{
    size_t at = 0;
    const bool negative = !text.empty() && text[0] == '-';
    if (!text.empty() && (text[0] == '-' || text[0] == '+'))
        at = 1;
    if (at == text.size())
        return std::nullopt;
    unsigned long long magnitude = 0;
    constexpr auto most = static_cast<unsigned long long>(std::numeric_limits<long long>::max());
    for (; at < text.size(); ++at) {
        const char c = text[at];
        if (c < '0' || c > '9')
            return std::nullopt;
        const auto digit = static_cast<unsigned long long>(c - '0');
        if (magnitude > (most + 1 - digit) / 10) // checked before multiplying: the sum must not wrap
            return std::nullopt;
        magnitude = magnitude * 10 + digit;
    }
    if (!negative && magnitude > most)
        return std::nullopt;
    if (negative)
        return magnitude == most + 1 ? std::numeric_limits<long long>::min() : -static_cast<long long>(magnitude);
    return static_cast<long long>(magnitude);
}

std::optional<double> parseNumber(const std::string& text)
{
    if (text.empty())
        return std::nullopt;
    char* end = nullptr;
    const double value = std::strtod(text.c_str(), &end);
    if (end == text.c_str() || *end != '\0')
        return std::nullopt;
    return value;
}

} // namespace vexel::Arguments
