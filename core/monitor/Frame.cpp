#include "monitor/Frame.h"

#include <algorithm>
#include <cctype>

namespace vexel {

namespace {

std::string folded(std::string_view text)
{
    std::string result(text);
    for (auto& c : result)
        c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    return result;
}

} // namespace

const AppGroup* Frame::app(std::string_view query) const
{
    const std::string wanted = folded(query);
    for (const auto& group : apps) {
        if (folded(group.name) == wanted)
            return &group;
    }
    for (const auto& group : apps) {
        if (folded(group.name).find(wanted) != std::string::npos)
            return &group;
    }
    return nullptr;
}

} // namespace vexel
