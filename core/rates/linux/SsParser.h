#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace vexel::SsParser {

// One TCP socket from `ss -tinpHeO` (one line per socket).
struct TcpSocket {
    uint64_t inode = 0;
    int32_t pid = 0; // the first process listed as holding it
    uint64_t bytesIn = 0; // bytes_received
    uint64_t bytesOut = 0; // bytes_acked: bytes_sent would count retransmissions
    bool loopbackOnly = false; // both ends on the loopback network

    bool operator==(const TcpSocket&) const = default;
};

// A process listed as holding a socket in a users:(("name",pid=N,fd=M),…) list.
struct Owner {
    std::string command;
    int32_t pid = 0;

    bool operator==(const Owner&) const = default;
};

// Every holder in a line's users:(…) list, in order; the names may hold
// escaped quotes. Empty when the line shows no owner or the list is cut short.
[[nodiscard]] std::vector<Owner> owners(std::string_view line);

// Sockets with a visible owner and an inode; others are skipped. Missing
// counters read 0.
[[nodiscard]] std::vector<TcpSocket> parse(std::string_view text);

// Whether an address as ss prints it ("127.0.0.1:9000", "[::1]:22",
// "[::ffff:127.0.0.1]:80") is on the loopback network.
[[nodiscard]] bool isLoopback(std::string_view endpoint);

} // namespace vexel::SsParser
