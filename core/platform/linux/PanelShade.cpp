#include "platform/linux/PanelShade.h"

#include "io/Files.h"
#include "platform/Environment.h"
#include "text/TextScan.h"

#include <algorithm>
#include <array>

namespace vexel {

namespace {

bool contains(std::string_view text, std::string_view part)
{
    return text.find(part) != std::string_view::npos;
}

PanelShade plasma(const PanelSettings& settings)
{
    const auto style = PanelShades::iniValue(settings.plasmarc, "Theme", "name").value_or("default");
    if (contains(style, "dark"))
        return PanelShade::dark;
    if (contains(style, "light"))
        return PanelShade::light;
    if (style != "default")
        return PanelShade::unknown; // another style's colours are its own
    const auto window = PanelShades::iniValue(settings.kdeglobals, "Colors:Window", "BackgroundNormal");
    return window ? PanelShades::shadeOfColour(*window) : PanelShade::unknown;
}

// <property name="dark-mode" type="bool" value="true"/> under the panels.
PanelShade xfce(std::string_view channel)
{
    const auto at = channel.find("name=\"dark-mode\"");
    if (at == std::string_view::npos)
        return PanelShade::unknown;
    const auto end = channel.find('>', at);
    const auto tag = channel.substr(at, end == std::string_view::npos ? std::string_view::npos : end - at);
    // Without dark mode the panel takes the GTK theme's colours: the palette's.
    return contains(tag, "value=\"true\"") ? PanelShade::dark : PanelShade::unknown;
}

} // namespace

PanelSettings PanelSettings::live()
{
    const std::string folder = configFolder();
    PanelSettings settings;
    settings.desktop = environmentVariable("XDG_CURRENT_DESKTOP").value_or("");
    settings.plasmarc = Files::read(folder + "/plasmarc").value_or("");
    settings.kdeglobals = Files::read(folder + "/kdeglobals").value_or("");
    settings.xfcePanel
        = Files::read(folder + "/xfce4/xfconf/xfce-perchannel-xml/xfce4-panel.xml", 1024 * 1024).value_or("");
    return settings;
}

namespace PanelShades {

PanelShade of(const PanelSettings& settings)
{
    const std::string_view desktop = settings.desktop;
    if (contains(desktop, "GNOME"))
        return PanelShade::dark;
    if (contains(desktop, "KDE"))
        return plasma(settings);
    if (contains(desktop, "XFCE"))
        return xfce(settings.xfcePanel);
    return PanelShade::unknown;
}

std::optional<std::string> iniValue(std::string_view text, std::string_view group, std::string_view key)
{
    std::optional<std::string> found;
    bool inGroup = false;
    TextScan::forEachLine(text, [&](std::string_view line) {
        line = TextScan::trim(line);
        if (line.starts_with('[')) {
            inGroup = line.size() == group.size() + 2 && line.substr(1, group.size()) == group && line.back() == ']';
            return;
        }
        const auto equals = line.find('=');
        if (inGroup && equals != std::string_view::npos && TextScan::trim(line.substr(0, equals)) == key)
            found = std::string(TextScan::trim(line.substr(equals + 1)));
    });
    return found;
}

PanelShade shadeOfColour(std::string_view rgb)
{
    std::array<uint64_t, 3> channels{};
    size_t start = 0;
    for (size_t i = 0; i < channels.size(); ++i) {
        const auto comma = rgb.find(',', start);
        const auto value = TextScan::toU64(TextScan::trim(rgb.substr(start, comma - start)));
        if (!value || *value > 255 || (i < 2 && comma == std::string_view::npos))
            return PanelShade::unknown;
        channels.at(i) = *value;
        start = comma + 1;
    }
    // HSL lightness, as Qt's QColor::lightness() has it.
    const auto [low, high] = std::minmax_element(channels.begin(), channels.end());
    return (*low + *high) / 2 < 128 ? PanelShade::dark : PanelShade::light;
}

} // namespace PanelShades

} // namespace vexel
