#pragma once

#include <map>
#include <string>
#include <vector>

namespace vexel::testing {

// What a tool printed and how it ended.
struct ToolResult {
    int status = -1; // exit status; -1 when it could not be started or was killed
    std::string out;
    std::string err;
};

// How to run a program: variables set in its environment (on top of this
// process's) and the text on its standard input (empty by default).
struct RunOptions {
    std::map<std::string, std::string> environment;
    std::string input;
};

// Runs a program found on PATH with an argument vector (no shell) and
// collects its standard output and error. Tests use it to ask the system's
// own tools and to run vexel itself.
[[nodiscard]] ToolResult runTool(const std::vector<std::string>& argv, const RunOptions& options = {});

} // namespace vexel::testing
