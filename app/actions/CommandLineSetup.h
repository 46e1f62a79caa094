#pragma once

#include "text/Sentence.h"

#include <filesystem>
#include <optional>
#include <string>

namespace vexel::CommandLineSetup {

// What a setup step did, in a sentence for the settings tab.
struct Outcome {
    bool done = false;
    Sentence text;
};

// Links the vexel command at `vexelPath` into the user's ~/.local/bin (made
// when missing). An earlier link is replaced; a file of the user's own by
// that name is left alone and said so.
[[nodiscard]] Outcome installCommand(const std::filesystem::path& vexelPath, const std::filesystem::path& home);

// Adds Vexel's read-only MCP server to Claude Code with `claude mcp add`
// when `claude` (its path) is known; otherwise says the line to run and the
// JSON to paste into an assistant's mcpServers file.
[[nodiscard]] Outcome addToClaude(const std::optional<std::string>& claude, const std::filesystem::path& home);

// The line that `addToClaude` runs, and the JSON for other assistants.
[[nodiscard]] std::string claudeLine();
[[nodiscard]] std::string mcpJson(const std::filesystem::path& home);

} // namespace vexel::CommandLineSetup
