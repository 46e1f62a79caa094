#include "devservers/linux/SsListenParser.h"

#include "rates/linux/SsParser.h"
#include "text/TextScan.h"

#include <limits>

namespace vexel::SsListenParser {

std::vector<ListenSocket> parse(std::string_view text)
{
    std::vector<ListenSocket> sockets;
    TextScan::forEachLine(text, [&](std::string_view line) {
        const auto words = TextScan::words(line);
        if (words.size() < 5 || words[0] != "LISTEN")
            return;
        const auto local = words[3];
        const auto colon = local.rfind(':');
        if (colon == std::string_view::npos)
            return;
        auto host = local.substr(0, colon);
        const auto port = TextScan::toU64(local.substr(colon + 1));
        if (!port || *port > std::numeric_limits<uint16_t>::max())
            return;
        const bool bracketed = host.size() >= 2 && host.front() == '[' && host.back() == ']';
        if (bracketed)
            host = host.substr(1, host.size() - 2);
        if (const auto percent = host.find('%'); percent != std::string_view::npos)
            host = host.substr(0, percent);
        const auto family = bracketed || host == "*" ? ListenSocket::Family::v6 : ListenSocket::Family::v4;
        const std::string address = host == "0.0.0.0" || host == "::" || host == "*" ? "*" : std::string(host);
        for (auto& owner : SsParser::owners(line))
            sockets.push_back(
                ListenSocket{owner.pid, std::move(owner.command), family, address, static_cast<uint16_t>(*port)});
    });
    return sockets;
}

} // namespace vexel::SsListenParser
