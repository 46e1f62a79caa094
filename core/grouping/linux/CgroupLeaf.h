#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vexel::CgroupLeaf {

// What a process's systemd unit says about the app it belongs to.
struct AppUnit {
    enum class Kind { launcher, flatpak, snap };
    Kind kind = Kind::launcher;
    std::string id; // desktop id candidate, Flatpak app id or snap name
    std::string launcherlessId; // the id without a launcher word in front ("gnome-firefox" → "firefox")
    std::string snapApp; // a snap's app ("snap.lxd.lxc-…" → "lxc"), whose entry is <snap>_<app>.desktop

    bool operator==(const AppUnit&) const = default;
};

// The last component of a cgroup path, with systemd's "\x2d" escapes undone.
[[nodiscard]] std::string leaf(std::string_view cgroup);

// The components around the leaf, nearest first, unescaped likewise:
// ".../app.slice/app-org.gnome.Terminal.slice/vte-spawn-….scope" →
// "app-org.gnome.Terminal.slice", "app.slice", ….
[[nodiscard]] std::vector<std::string> enclosing(std::string_view cgroup);

// The app unit a cgroup component names: "app-flatpak-org.mozilla.firefox-12345.scope",
// "snap.firefox.firefox-<uuid>.scope", "app-gnome-org.gnome.Terminal-4376.scope",
// "app-org.kde.konsole@autostart.service", an app's slice "app-org.gnome.Terminal.slice",
// D-Bus activation's "app-dbus-:1.37-org.a11y.atspi.Registry.slice".
// Nothing for anything else (services, session scopes, vte-spawn scopes, app.slice).
[[nodiscard]] std::optional<AppUnit> appUnit(std::string_view leaf);

} // namespace vexel::CgroupLeaf
