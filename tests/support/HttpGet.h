#pragma once

#include <cstdint>
#include <string>

namespace vexel::testing {

// One request to a server on loopback over a connection of its own, and the
// whole answer, headers and all, as the server closed it; empty when the
// connection was refused.
[[nodiscard]] std::string httpRequest(
    uint16_t port, const std::string& method, const std::string& path, const std::string& headers = "");

// The answer's first line ("HTTP/1.1 200 OK").
[[nodiscard]] std::string statusLine(const std::string& answer);

// The answer without its headers.
[[nodiscard]] std::string body(const std::string& answer);

// A connection to the port, or -1.
[[nodiscard]] int connectTo(uint16_t port);

} // namespace vexel::testing
