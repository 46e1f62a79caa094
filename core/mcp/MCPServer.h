#pragma once

#include "reports/VexelService.h"

#include <nlohmann/json.hpp>

#include <cstdio>
#include <optional>
#include <string>
#include <vector>

namespace vexel {

// The read-only Model Context Protocol server: JSON-RPC 2.0, one message per
// line, eight tools that each return one report as JSON text. Nothing in it
// can stop, quit or change anything. Single-threaded; never writes to
// standard error.
class MCPServer {
public:
    explicit MCPServer(VexelService& service);

    // The protocol revisions it speaks, newest first.
    static const std::vector<std::string>& supportedVersions();

    // The longest message read, in bytes: far more than any request of the
    // protocol, far less than would strain memory.
    static constexpr size_t lineCap = 4 * 1024 * 1024;

    // Reads `input` line by line until it ends and writes each answer as one
    // line (one write) to `output`. A line longer than lineCap is answered
    // with an error (id null, -32600) and its bytes past the cap are dropped
    // as they are read.
    void runStdio(std::FILE* input = stdin, std::FILE* output = stdout);

    // The answer to one line, as compact JSON with sorted keys; nothing for a
    // blank line or a notification.
    [[nodiscard]] std::optional<std::string> handle(const std::string& line);

    // The JSON-RPC response to one message; nothing for a notification.
    [[nodiscard]] std::optional<nlohmann::json> respond(const nlohmann::json& message);

    // Named in "serverInfo"; the entry sets it to the program's version.
    std::string version = "1.0";

private:
    // The answer to a line past the cap.
    [[nodiscard]] static std::string tooLong();
    [[nodiscard]] nlohmann::json initialize(const nlohmann::json& params) const;
    [[nodiscard]] nlohmann::json toolsCall(const nlohmann::json& id, const nlohmann::json& params);

    VexelService& m_service;
};

} // namespace vexel
