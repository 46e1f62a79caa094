#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace vexel {

// How light the desktop's panel is, the one that holds Vexel's status items,
// as the desktop's own settings say it: its panel items are drawn light on a
// dark panel and dark on a light one. Unknown where the settings say nothing,
// and then the system's palette decides.
enum class PanelShade { unknown, light, dark };

// The desktop's settings that tell a panel's shade, as read from its files;
// a file that isn't there is empty.
struct PanelSettings {
    std::string desktop; // XDG_CURRENT_DESKTOP: "GNOME", "KDE", "XFCE", "ubuntu:GNOME"…
    std::string plasmarc; // ~/.config/plasmarc: [Theme] name, the Plasma style
    std::string kdeglobals; // ~/.config/kdeglobals: the colour scheme's [Colors:Window]
    std::string xfcePanel; // the xfconf channel xfce4-panel.xml: the panels' dark-mode

    // The files of the user's session (XDG_CONFIG_HOME or ~/.config).
    [[nodiscard]] static PanelSettings live();
};

namespace PanelShades {

// GNOME's top bar is dark in light and dark styles alike; Plasma's panel
// takes the Plasma style's colours ("breeze-dark", "breeze-light"), and the
// default style the colour scheme's window colour; Xfce's panel is dark
// when its dark-mode is on (the default since 4.18).
[[nodiscard]] PanelShade of(const PanelSettings& settings);

// One value of an INI file: `key` in `[group]`.
[[nodiscard]] std::optional<std::string> iniValue(std::string_view text, std::string_view group, std::string_view key);

// The shade of an "r,g,b" colour: dark below half lightness.
[[nodiscard]] PanelShade shadeOfColour(std::string_view rgb);

} // namespace PanelShades

} // namespace vexel
