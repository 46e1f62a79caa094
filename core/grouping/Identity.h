#pragma once

#include <optional>
#include <string>

namespace vexel {

// What a group of processes is: an app, a family of system services, or a
// command-line tool. Raw values 0, 1, 2.
enum class AppKind { app = 0, system = 1, tool = 2 };

// The app, service family or tool a process belongs to. Keys are
// "app:<bundle or desktop id>", "sys:<family title>" or "tool:<process name>".
struct Identity {
    std::string key;
    std::string name;
    AppKind kind = AppKind::tool;
    std::optional<std::string> path; // the app bundle, desktop file or executable

    bool operator==(const Identity&) const = default;
};

} // namespace vexel
