#include "rates/linux/SsParser.h"

#include "text/TextScan.h"

#include <limits>

namespace vexel::SsParser {

namespace {

// The number after "key:" among the words, or nothing.
std::optional<uint64_t> counter(const std::vector<std::string_view>& words, std::string_view key)
{
    for (const auto word : words) {
        if (word.size() > key.size() && word.starts_with(key) && word[key.size()] == ':')
            return TextScan::toU64(word.substr(key.size() + 1));
    }
    return std::nullopt;
}

} // namespace

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

bool isLoopback(std::string_view endpoint)
{
    const auto colon = endpoint.rfind(':');
    auto host = endpoint.substr(0, colon == std::string_view::npos ? endpoint.size() : colon);
    if (host.size() >= 2 && host.front() == '[' && host.back() == ']')
        host = host.substr(1, host.size() - 2);
    if (const auto percent = host.find('%'); percent != std::string_view::npos)
        host = host.substr(0, percent);
    if (host.starts_with("::ffff:"))
        host.remove_prefix(7);
    return host.starts_with("127.") || host == "::1";
}

std::vector<TcpSocket> parse(std::string_view text)
{
    std::vector<TcpSocket> sockets;
    TextScan::forEachLine(text, [&](std::string_view line) {
        const auto words = TextScan::words(line);
        if (words.size() < 5)
            return;
        const auto holders = owners(line);
        const auto inode = counter(words, "ino");
        if (holders.empty() || !inode || *inode == 0)
            return;
        TcpSocket socket;
        socket.inode = *inode;
        socket.pid = holders.front().pid; // a socket shared after fork goes to its first holder
        socket.bytesIn = counter(words, "bytes_received").value_or(0);
        socket.bytesOut = counter(words, "bytes_acked").value_or(0);
        socket.loopbackOnly = isLoopback(words[3]) && isLoopback(words[4]);
        sockets.push_back(socket);
    });
    return sockets;
}

} // namespace vexel::SsParser
