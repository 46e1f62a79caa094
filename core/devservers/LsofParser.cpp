#include "devservers/LsofParser.h"

#include "text/TextScan.h"

#include <algorithm>
#include <limits>

namespace vexel::LsofParser {

namespace {

std::optional<int32_t> pidOf(std::string_view text)
{
    const auto value = TextScan::toI64(text);
    if (!value || *value < std::numeric_limits<int32_t>::min() || *value > std::numeric_limits<int32_t>::max())
        return std::nullopt;
    return static_cast<int32_t>(*value);
}

bool isTable(std::string_view text)
{
    return text.starts_with("COMMAND") || text.find("(LISTEN)") != std::string_view::npos;
}

} // namespace

std::optional<std::pair<std::string, uint16_t>> endpoint(std::string_view name)
{
    const auto colon = name.rfind(':');
    if (colon == std::string_view::npos)
        return std::nullopt;
    auto host = name.substr(0, colon);
    const auto portText = name.substr(colon + 1);
    if (host.size() >= 2 && host.front() == '[' && host.back() == ']')
        host = host.substr(1, host.size() - 2);
    if (const auto number = TextScan::toU64(portText)) {
        if (*number > std::numeric_limits<uint16_t>::max())
            return std::nullopt;
        return std::pair{std::string(host), static_cast<uint16_t>(*number)};
    }
    for (const auto& [service, port] : services) {
        if (service == portText)
            return std::pair{std::string(host), port};
    }
    return std::nullopt;
}

std::vector<ListenSocket> parseTable(std::string_view text)
{
    // COMMAND PID USER FD TYPE DEVICE SIZE/OFF NODE NAME, e.g.
    // node 123 alice 21u IPv6 0x1 0t0 TCP [::1]:3000 (LISTEN)
    std::vector<ListenSocket> sockets;
    TextScan::forEachLine(text, [&](std::string_view line) {
        const auto words = TextScan::words(line);
        if (words.size() < 10 || words.back() != "(LISTEN)")
            return;
        const auto pid = pidOf(words[1]);
        const auto type = std::find_if(words.begin(), words.end(), [](auto w) { return w == "IPv4" || w == "IPv6"; });
        const auto place = endpoint(words[words.size() - 2]);
        if (!pid || type == words.end() || !place)
            return;
        sockets.push_back(ListenSocket{*pid, std::string(words[0]),
            *type == "IPv6" ? ListenSocket::Family::v6 : ListenSocket::Family::v4, place->first, place->second});
    });
    return sockets;
}

std::vector<ListenSocket> parse(std::string_view text)
{
    if (isTable(text))
        return parseTable(text);
    std::vector<ListenSocket> sockets;
    std::optional<int32_t> pid;
    std::string command;
    auto family = ListenSocket::Family::v4;
    TextScan::forEachLine(text, [&](std::string_view line) {
        if (line.empty())
            return;
        const char tag = line.front();
        const auto value = line.substr(1);
        switch (tag) {
        case 'p':
            pid = pidOf(value);
            command.clear();
            family = ListenSocket::Family::v4;
            break;
        case 'c': command = std::string(value); break;
        case 'f': family = ListenSocket::Family::v4; break;
        case 't': family = value == "IPv6" ? ListenSocket::Family::v6 : ListenSocket::Family::v4; break;
        case 'n':
            if (pid)
                if (auto place = endpoint(value))
                    sockets.push_back(ListenSocket{*pid, command, family, std::move(place->first), place->second});
            break;
        default: break;
        }
    });
    return sockets;
}

} // namespace vexel::LsofParser
