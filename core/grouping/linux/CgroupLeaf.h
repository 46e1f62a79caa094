#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace vexel::CgroupLeaf {

// What a process's systemd unit says about the app it belongs to.
struct AppUnit {
    enum class Kind { launcher, flatpak, snap };
    Kind kind = Kind::launcher;
    std::string id; // desktop id candidate, Flatpak app id or snap name
    std::string launcherlessId; // the id without a launcher word in front ("gnome-firefox" → "firefox")

    bool operator==(const AppUnit&) const = default;
};

// The last component of a cgroup path, with systemd's "\x2d" escapes undone.
[[nodiscard]] std::string leaf(std::string_view cgroup);

// The app unit named by a leaf: "app-flatpak-org.mozilla.firefox-12345.scope",
// "snap.firefox.firefox-<uuid>.scope", "app-gnome-org.gnome.Terminal-4376.scope",
// "app-org.kde.konsole@autostart.service", "dbus-:1.2-org.gnome.Terminal@0.service".
// Nothing for anything else (services, session scopes, vte-spawn scopes).
[[nodiscard]] std::optional<AppUnit> appUnit(std::string_view leaf);

} // namespace vexel::CgroupLeaf
