#pragma once

#include <filesystem>
#include <functional>
#include <optional>
#include <string>

namespace vexel {

// The one data folder shared by the desktop app (which writes there), the
// command line and the MCP server (which only read), and the files in it.
struct VexelPaths {
    std::filesystem::path dir;

    explicit VexelPaths(std::filesystem::path folder)
        : dir(std::move(folder))
    {
    }

    // The folder of real use, worked out afresh on each call and never created:
    // "VEXEL_DATA_DIR" when set and non-empty (taken literally), else
    // $XDG_DATA_HOME/vexel when that is an absolute path, else ~/.local/share/vexel.
    [[nodiscard]] static VexelPaths standard();

    // As `standard`, with the environment looked up through `getenv` (for tests).
    [[nodiscard]] static VexelPaths standard(const std::function<std::optional<std::string>(const char*)>& getenv);

    [[nodiscard]] std::filesystem::path settings() const { return dir / "settings.json"; }
    [[nodiscard]] std::filesystem::path history() const { return dir / "history.sqlite"; }
    [[nodiscard]] std::filesystem::path activity() const { return dir / "server-activity.json"; }
};

} // namespace vexel
