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

std::string unescapeHex(std::string_view text)
{
    const auto digit = [](char c) {
        return c >= '0' && c <= '9' ? c - '0'
            : c >= 'a' && c <= 'f'  ? c - 'a' + 10
            : c >= 'A' && c <= 'F'  ? c - 'A' + 10
                                    : -1;
    };
    std::string out;
    out.reserve(text.size());
    for (size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '\\' && i + 3 < text.size() && text[i + 1] == 'x' && digit(text[i + 2]) >= 0
            && digit(text[i + 3]) >= 0) {
            out.push_back(static_cast<char>(digit(text[i + 2]) * 16 + digit(text[i + 3])));
            i += 3;
        } else {
            out.push_back(text[i]);
        }
    }
    return out;
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
