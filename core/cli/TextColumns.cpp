#include "cli/TextColumns.h"

namespace vexel::TextColumns {

namespace {

bool continuation(char c)
{
    return (static_cast<unsigned char>(c) & 0xC0) == 0x80;
}

} // namespace

size_t characters(std::string_view text)
{
    size_t count = 0;
    for (const char c : text)
        count += continuation(c) ? 0 : 1;
    return count;
}

std::string cell(std::string_view text, size_t width, Align align)
{
    const size_t length = characters(text);
    if (length > width) {
        size_t end = 0;
        for (size_t kept = 0; end < text.size(); ++end) {
            if (!continuation(text[end]) && kept++ == width)
                break;
        }
        return std::string(text.substr(0, end));
    }
    const std::string padding(width - length, ' ');
    return align == Align::left ? std::string(text) + padding : padding + std::string(text);
}

std::string joinLines(const std::vector<std::string>& lines)
{
    std::string joined;
    for (size_t i = 0; i < lines.size(); ++i) {
        if (i > 0)
            joined += '\n';
        joined += lines[i];
    }
    return joined;
}

} // namespace vexel::TextColumns
