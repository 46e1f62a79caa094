#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace vexel {

// The parts of a freedesktop .desktop file that name an app and find its program.
struct DesktopEntry {
    std::string name;
    std::string program; // Exec's program: the first word after any `env VAR=…`
    std::string tryExec;
    std::string wmClass; // StartupWMClass
    bool terminal = false; // runs inside a terminal: its processes belong to the terminal
    bool hidden = false;

    bool operator==(const DesktopEntry&) const = default;

    // The [Desktop Entry] group of a Type=Application file; nothing for other
    // types, a missing group or a missing Name.
    [[nodiscard]] static std::optional<DesktopEntry> parse(std::string_view text);

    // The program of an Exec line: quotes removed, `env` and its assignments
    // skipped, field codes (%f %U …) ignored.
    [[nodiscard]] static std::string programOf(std::string_view exec);
};

} // namespace vexel
