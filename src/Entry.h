#pragma once

#include <functional>
#include <string>
#include <vector>

namespace vexel {

// The role a start of the program plays.
enum class Role { cli, mcp, desktop };

// Chooses the role from the arguments and the name the program was started
// under: "--mcp" anywhere means the MCP server; the name "vexel" (exactly) or
// "--cli" as the first argument means the command line; anything else is the
// desktop app.
[[nodiscard]] Role chooseRole(const std::vector<std::string>& args);

// Starts the desktop app with the program's arguments; returns its exit status.
using DesktopLauncher = std::function<int(const std::vector<std::string>& args)>;

// The one entry of both executables: runs the role and returns the exit status.
[[nodiscard]] int run(const std::vector<std::string>& args, const DesktopLauncher& desktop);

} // namespace vexel
