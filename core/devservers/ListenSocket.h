#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace vexel {

// One TCP socket in the listening state and the process that holds it.
struct ListenSocket {
    enum class Family { v4, v6 };

    int32_t pid = 0;
    std::string command; // the process's command name as the tool prints it
    Family family = Family::v4;
    std::string address; // bound address without brackets: "127.0.0.1", "::1", "*"
    uint16_t port = 0;

    bool operator==(const ListenSocket&) const = default;
    auto operator<=>(const ListenSocket&) const = default;
};

// Whether other machines can connect: the socket is bound to something other
// than a loopback address (127.0.0.0/8, "::1", "localhost").
[[nodiscard]] bool reachableFromNetwork(const ListenSocket& socket);

// "IPv4" or "IPv6".
[[nodiscard]] std::string rawValue(ListenSocket::Family family);

// The socket under its field names: pid, command, family, address, port.

} // namespace vexel
