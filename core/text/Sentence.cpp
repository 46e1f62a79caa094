#include "text/Sentence.h"

#include <string_view>

namespace vexel {

namespace {

bool valueMarker(const std::string& pattern, size_t i)
{
    return pattern[i] == '%' && i + 1 < pattern.size() && pattern[i + 1] >= '1' && pattern[i + 1] <= '9';
}

// "(s)" or "(es)" at `i`: the plural ending of English source texts.
size_t pluralEnding(const std::string& pattern, size_t i)
{
    for (const std::string_view ending : {"(s)", "(es)"})
        if (pattern.compare(i, ending.size(), ending) == 0)
            return ending.size();
    return 0;
}

} // namespace

std::string Sentence::english() const
{
    std::string said;
    said.reserve(pattern.size());
    for (size_t i = 0; i < pattern.size(); ++i) {
        if (valueMarker(pattern, i) && static_cast<size_t>(pattern[i + 1] - '1') < values.size()) {
            said += values[static_cast<size_t>(pattern[i + 1] - '1')].text;
            ++i;
        } else if (count && pattern.compare(i, 2, "%n") == 0) {
            said += std::to_string(*count);
            ++i;
        } else if (const size_t length = count ? pluralEnding(pattern, i) : 0; length > 0) {
            if (*count != 1)
                said += pattern.substr(i + 1, length - 2);
            i += length - 1;
        } else {
            said += pattern[i];
        }
    }
    return said;
}

std::string english(const Paragraph& paragraph)
{
    std::string said;
    for (const auto& sentence : paragraph)
        said += (said.empty() ? "" : " ") + sentence.english();
    return said;
}

} // namespace vexel
