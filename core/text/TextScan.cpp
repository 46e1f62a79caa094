#include "text/TextScan.h"

#include <charconv>

namespace vexel::TextScan {

namespace {

template <typename T> std::optional<T> fromChars(std::string_view text)
{
    text = trim(text);
    if (text.empty())
        return std::nullopt;
    if (text.front() == '+')
        text.remove_prefix(1);
    T value{};
    const auto* end = text.data() + text.size();
    const auto [ptr, ec] = std::from_chars(text.data(), end, value);
    if (ec != std::errc() || ptr != end)
        return std::nullopt;
    return value;
}

bool isBlank(char c)
{
    return c == ' ' || c == '\t' || c == '\n' || c == '\r';
}

} // namespace

std::optional<uint64_t> toU64(std::string_view text)
{
    return fromChars<uint64_t>(text);
}

std::optional<int64_t> toI64(std::string_view text)
{
    return fromChars<int64_t>(text);
}

std::optional<double> toDouble(std::string_view text)
{
    return fromChars<double>(text);
}

std::string_view trim(std::string_view text)
{
    while (!text.empty() && isBlank(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && isBlank(text.back()))
        text.remove_suffix(1);
    return text;
}

std::vector<std::string_view> words(std::string_view line)
{
    std::vector<std::string_view> result;
    size_t i = 0;
    while (i < line.size()) {
        while (i < line.size() && isBlank(line[i]))
            ++i;
        const size_t start = i;
        while (i < line.size() && !isBlank(line[i]))
            ++i;
        if (i > start)
            result.push_back(line.substr(start, i - start));
    }
    return result;
}

} // namespace vexel::TextScan
