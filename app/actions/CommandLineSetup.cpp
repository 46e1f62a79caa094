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
        return {false, {VEXEL_WORDS("vexel::Vexel", "Couldn't find the vexel command at %1."), {{vexelPath.string()}}}};
    const auto status = std::filesystem::symlink_status(link, error);
    if (std::filesystem::exists(status) && !std::filesystem::is_symlink(status))
        return {false,
            {VEXEL_WORDS("vexel::Vexel", "%1 is already a file of yours; Vexel leaves it alone."), {{link.string()}}}};
    std::filesystem::create_directories(link.parent_path(), error);
    if (!error)
        std::filesystem::remove(link, error);
    if (!error)
        std::filesystem::create_symlink(vexelPath, link, error);
    if (error)
        return {false, {VEXEL_WORDS("vexel::Vexel", "Couldn't link %1: %2."), {{link.string()}, {error.message()}}}};
    return {true,
        {VEXEL_WORDS(
             "vexel::Vexel", "Installed: %1 runs %2. If your shell doesn't find vexel, add ~/.local/bin to your PATH."),
            {{link.string()}, {vexelPath.string()}}}};
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
    const std::vector<Sentence::Value> paste{{claudeLine()}, {mcpJson(home)}};
    if (!claude)
        return {false,
            {VEXEL_WORDS("vexel::Vexel",
                 "Claude Code's claude command isn't installed. Run this line in a terminal:\n%1\nOr paste this into "
                 "your assistant's MCP settings:\n%2"),
                paste}};
    const auto result = Shell::run(
        *claude, {"mcp", "add", "vexel", "--", linkIn(home).string(), "--mcp"}, claudeSeconds, {.keepErrors = true});
    if (!result)
        return {false,
            {VEXEL_WORDS("vexel::Vexel",
                 "%1 Run this line in a terminal:\n%2\nOr paste this into your assistant's MCP settings:\n%3"),
                {{result.error}, paste[0], paste[1]}}};
    // The exit status isn't kept: claude says what went wrong on standard error.
    if (!result.errors.empty())
        return {false,
            {VEXEL_WORDS("vexel::Vexel",
                 "claude said: %1Run this line in a terminal:\n%2\nOr paste this into your assistant's MCP "
                 "settings:\n%3"),
                {{result.errors}, paste[0], paste[1]}}};
    return {true, {VEXEL_WORDS("vexel::Vexel", "Added Vexel's read-only MCP server to Claude Code.")}};
}

} // namespace vexel::CommandLineSetup
