#include "system/linux/NetDev.h"

#include "text/TextScan.h"

namespace vexel::NetDev {

std::vector<Interface> parse(std::string_view text)
{
    std::vector<Interface> interfaces;
    TextScan::forEachLine(text, [&](std::string_view line) {
        // An interface name may itself hold a colon (aliases), so split at the last one.
        const auto colon = line.rfind(':');
        if (colon == std::string_view::npos)
            return;
        const auto name = TextScan::trim(line.substr(0, colon));
        const auto fields = TextScan::words(line.substr(colon + 1));
        if (name.empty() || fields.size() < 9)
            return;
        const auto received = TextScan::toU64(fields[0]);
        const auto sent = TextScan::toU64(fields[8]);
        if (!received || !sent)
            return;
        interfaces.push_back(Interface{std::string(name), *received, *sent});
    });
    return interfaces;
}

} // namespace vexel::NetDev
