#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

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
    // types, a missing group or a missing Name. The name is the one for
    // `locale` ("de_DE.UTF-8"): Name[de_DE], then Name[de], else Name.
    [[nodiscard]] static std::optional<DesktopEntry> parse(std::string_view text, std::string_view locale = {});

    // The Name[…] keys that suit a locale, best first: "sr_RS.UTF-8@latin" gives
    // "sr_RS@latin", "sr_RS", "sr@latin", "sr". None for C and POSIX.
    [[nodiscard]] static std::vector<std::string> localeKeys(std::string_view locale);

    // The program of an Exec line: quotes removed, `env` and its assignments
    // skipped, field codes (%f %U …) ignored.
    [[nodiscard]] static std::string programOf(std::string_view exec);

    // A word as an Exec value writes it: quoted, with ", `, $ and \ escaped
    // inside the quotes, % doubled, and each backslash doubled once more for
    // the value's own escapes. programOf gives the word back.
    [[nodiscard]] static std::string execArgument(std::string_view word);
};

} // namespace vexel
