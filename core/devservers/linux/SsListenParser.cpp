#include "devservers/linux/SsListenParser.h"

#include "text/TextScan.h"

#include <limits>

namespace vexel::SsListenParser {

namespace {

struct Owner {
    std::string command;
    int32_t pid = 0;
};

// Every ("name",pid=N,fd=M) tuple of a users:(…) list.
std::vector<Owner> owners(std::string_view line)
{
    std::vector<Owner> result;
    auto at = line.find("users:(");
    if (at == std::string_view::npos)
        return result;
    at += 7;
    while (at < line.size() && line[at] == '(') {
        if (at + 1 >= line.size() || line[at + 1] != '"')
            break;
        std::string name;
        size_t i = at + 2;
        for (; i < line.size() && line[i] != '"'; ++i) {
            if (line[i] == '\\' && i + 1 < line.size())
                ++i;
            name += line[i];
        }
        constexpr std::string_view pidKey = "\",pid=";
        if (i >= line.size() || line.substr(i, pidKey.size()) != pidKey)
            break;
        i += pidKey.size();
        const auto end = line.find_first_not_of("0123456789", i);
        const auto pid
            = TextScan::toU64(line.substr(i, end == std::string_view::npos ? std::string_view::npos : end - i));
        if (!pid || *pid > static_cast<uint64_t>(std::numeric_limits<int32_t>::max()))
            break;
        result.push_back({std::move(name), static_cast<int32_t>(*pid)});
        const auto close = line.find(')', end == std::string_view::npos ? line.size() : end);
        if (close == std::string_view::npos)
            break;
        at = close + 1;
        if (at < line.size() && line[at] == ',')
            ++at;
    }
    return result;
}

} // namespace

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
        for (auto& owner : owners(line))
            sockets.push_back(
                ListenSocket{owner.pid, std::move(owner.command), family, address, static_cast<uint16_t>(*port)});
    });
    return sockets;
}

} // namespace vexel::SsListenParser
