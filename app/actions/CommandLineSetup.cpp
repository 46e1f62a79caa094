#include "actions/CommandLineSetup.h"

#include "processes/Shell.h"

namespace vexel::CommandLineSetup {

namespace {

constexpr double claudeSeconds = 20;

std::filesystem::path linkIn(const std::filesystem::path& home)
{
    return home / ".local" / "bin" / "vexel";
}

} // namespace

Outcome installCommand(const std::filesystem::path& vexelPath, const std::filesystem::path& home)
{
    const auto link = linkIn(home);
    std::error_code error;
    if (!std::filesystem::is_regular_file(vexelPath, error))
        return {false, "Couldn't find the vexel command at " + vexelPath.string() + "."};
    const auto status = std::filesystem::symlink_status(link, error);
    if (std::filesystem::exists(status) && !std::filesystem::is_symlink(status))
        return {false, link.string() + " is already a file of yours; Vexel leaves it alone."};
    std::filesystem::create_directories(link.parent_path(), error);
    if (!error)
        std::filesystem::remove(link, error);
    if (!error)
        std::filesystem::create_symlink(vexelPath, link, error);
    if (error)
        return {false, "Couldn't link " + link.string() + ": " + error.message() + "."};
    return {true,
        "Installed: " + link.string() + " runs " + vexelPath.string()
            + ". If your shell doesn't find vexel, add ~/.local/bin to your PATH."};
}

std::string claudeLine()
{
    return "claude mcp add vexel -- ~/.local/bin/vexel --mcp";
}

std::string mcpJson(const std::filesystem::path& home)
{
    return "{\n  \"mcpServers\": {\n    \"vexel\": {\n      \"command\": \"" + linkIn(home).string()
        + "\",\n      \"args\": [\"--mcp\"]\n    }\n  }\n}";
}

Outcome addToClaude(const std::optional<std::string>& claude, const std::filesystem::path& home)
{
    const std::string paste = "Run this line in a terminal:\n" + claudeLine()
        + "\nOr paste this into your assistant's MCP settings:\n" + mcpJson(home);
    if (!claude)
        return {false, "Claude Code's claude command isn't installed. " + paste};
    const auto result = Shell::run(
        *claude, {"mcp", "add", "vexel", "--", linkIn(home).string(), "--mcp"}, claudeSeconds, {.keepErrors = true});
    if (!result)
        return {false, result.error + " " + paste};
    // The exit status isn't kept: claude says what went wrong on standard error.
    if (!result.errors.empty())
        return {false, "claude said: " + result.errors + paste};
    return {true, "Added Vexel's read-only MCP server to Claude Code."};
}

} // namespace vexel::CommandLineSetup
