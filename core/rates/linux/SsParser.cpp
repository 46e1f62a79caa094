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

// The first pid in users:(("name",pid=123,fd=4),…); the name may hold anything, escaped.
std::optional<int32_t> firstPid(std::string_view line)
{
    const auto users = line.find("users:((");
    if (users == std::string_view::npos)
        return std::nullopt;
    size_t i = users + 8;
    if (i >= line.size() || line[i] != '"')
        return std::nullopt;
    for (++i; i < line.size() && line[i] != '"'; ++i) {
        if (line[i] == '\\')
            ++i;
    }
    constexpr std::string_view pidKey = "\",pid=";
    // An escape at the very end leaves i past the line.
    if (i >= line.size() || line.substr(i, pidKey.size()) != pidKey)
        return std::nullopt;
    i += pidKey.size();
    const auto end = line.find_first_not_of("0123456789", i);
    const auto pid = TextScan::toU64(line.substr(i, end == std::string_view::npos ? std::string_view::npos : end - i));
    if (!pid || *pid > static_cast<uint64_t>(std::numeric_limits<int32_t>::max()))
        return std::nullopt;
    return static_cast<int32_t>(*pid);
}

} // namespace

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
        const auto pid = firstPid(line);
        const auto inode = counter(words, "ino");
        if (!pid || !inode || *inode == 0)
            return;
        TcpSocket socket;
        socket.inode = *inode;
        socket.pid = *pid;
        socket.bytesIn = counter(words, "bytes_received").value_or(0);
        socket.bytesOut = counter(words, "bytes_acked").value_or(0);
        socket.loopbackOnly = isLoopback(words[3]) && isLoopback(words[4]);
        sockets.push_back(socket);
    });
    return sockets;
}

} // namespace vexel::SsParser
