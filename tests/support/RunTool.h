#pragma once

#include <string>
#include <vector>

namespace vexel::testing {

// What a tool printed and how it ended.
struct ToolResult {
    int status = -1; // exit status; -1 when it could not be started or was killed
    std::string out;
};

// Runs a program found on PATH with an argument vector (no shell) and
// collects its standard output. Tests use it to ask the system's own tools.
[[nodiscard]] ToolResult runTool(const std::vector<std::string>& argv);

} // namespace vexel::testing
