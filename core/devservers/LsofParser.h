#pragma once

#include "devservers/ListenSocket.h"

#include <array>
#include <optional>
#include <string_view>
#include <utility>
#include <vector>

namespace vexel::LsofParser {

// TCP sockets in the listening state, numeric hosts and ports, field output
// with pid, command, name and type.
inline constexpr std::array<std::string_view, 5> arguments{"-iTCP", "-sTCP:LISTEN", "-nP", "-F", "pcnt"};

// Ports that arrive as service names instead of numbers.
inline constexpr std::array<std::pair<std::string_view, uint16_t>, 7> services{{{"http", 80}, {"https", 443},
    {"http-alt", 8080}, {"ssh", 22}, {"postgresql", 5432}, {"mysql", 3306}, {"redis", 6379}}};

// The sockets of lsof output: the field form (-F pcnt) or the plain table
// (a header beginning with "COMMAND", rows marked "(LISTEN)"); both give the same sockets.
[[nodiscard]] std::vector<ListenSocket> parse(std::string_view text);

// The table form alone.
[[nodiscard]] std::vector<ListenSocket> parseTable(std::string_view text);

// Splits a name such as "[::1]:3000", "*:8080" or "127.0.0.1:http-alt" into
// address and port; nothing without a usable port.
[[nodiscard]] std::optional<std::pair<std::string, uint16_t>> endpoint(std::string_view name);

} // namespace vexel::LsofParser
