#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace vexel {

// The role a start of the program plays.
enum class Role { cli, mcp, desktop };

// What the entry does with one start: the role, the arguments the role is
// given (the command line's, without the program path and one leading
// "--cli"), and whether the MCP server names the program's version (it does
// when reached through "--mcp", not through `vexel mcp`).
struct Dispatch {
    Role role = Role::desktop;
    std::vector<std::string> rest;
    bool versionFromProgram = false;
};

// Chooses, first rule first: "--mcp" anywhere is the MCP server; the name
// "vexel" (exactly) or "--cli" as the first argument is the command line, or
// the MCP server when its command is "mcp"; anything else is the desktop app.
[[nodiscard]] Dispatch dispatch(const std::vector<std::string>& args);

// The version the program reports: the build's, else "1.0".
[[nodiscard]] std::string programVersion();

// The program `name` beside this one ("vexel-app", "vexel-recorder"), in the
// folder of `self`, the absolute path this program runs from
// (/proc/self/exe). Nothing when that path is unknown or not absolute: the
// program is never looked for in the current folder or on PATH.
[[nodiscard]] std::optional<std::string> siblingProgram(
    const std::optional<std::string>& self, const std::string& name);

// Replaces this process with the program `name` beside it, given `args` (its
// own name first); returns only when that fails, with exit status 1 and a
// message on standard error.
int handOver(const std::string& name, const std::vector<std::string>& args);

// Starts the desktop app with the program's arguments; returns its exit status.
using DesktopLauncher = std::function<int(const std::vector<std::string>& args)>;

// The one entry of both executables: runs the role and returns the exit status.
[[nodiscard]] int run(const std::vector<std::string>& args, const DesktopLauncher& desktop);

} // namespace vexel
