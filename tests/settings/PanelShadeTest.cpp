// The shade of the panel that holds the status items, from each desktop's
// own settings files as Debian 12's desktops write them.

#include "platform/linux/PanelShade.h"
#include "io/Files.h"

#include <gtest/gtest.h>

using namespace vexel;

namespace {

std::string fixture(const std::string& name)
{
    return Files::read(std::string(VEXEL_FIXTURES) + "/panels/" + name).value_or("");
}

} // namespace

TEST(PanelShade, EachDesktopsPanelAsItsSettingsSay)
{
    const auto dark = fixture("kdeglobals-breeze-dark");
    const auto light = fixture("kdeglobals-breeze-light");
    ASSERT_FALSE(dark.empty());
    EXPECT_EQ(PanelShades::of({"ubuntu:GNOME", "", "", ""}), PanelShade::dark);
    // Plasma's default style follows the colour scheme; Breeze Dark's style
    // makes the panel dark over light apps (Breeze Twilight).
    EXPECT_EQ(PanelShades::of({"KDE", "", dark, ""}), PanelShade::dark);
    EXPECT_EQ(PanelShades::of({"KDE", "", light, ""}), PanelShade::light);
    EXPECT_EQ(PanelShades::of({"KDE", fixture("plasmarc-breeze-dark"), light, ""}), PanelShade::dark);
    EXPECT_EQ(PanelShades::of({"KDE", "[Theme]\nname=some-store-style\n", dark, ""}), PanelShade::unknown);
    EXPECT_EQ(PanelShades::of({"KDE", "", "", ""}), PanelShade::unknown);
    // Xfce 4.18's panels start in dark mode; without it they take the GTK theme's colours.
    auto xfce = fixture("xfce4-panel.xml");
    EXPECT_EQ(PanelShades::of({"XFCE", "", "", xfce}), PanelShade::dark);
    xfce.replace(xfce.find("value=\"true\"/>"), 12, "value=\"false\"");
    EXPECT_EQ(PanelShades::of({"XFCE", "", "", xfce}), PanelShade::unknown);
    EXPECT_EQ(PanelShades::of({"sway", "", dark, ""}), PanelShade::unknown);

    EXPECT_EQ(PanelShades::shadeOfColour("239,240,241"), PanelShade::light);
    for (const auto* broken : {"42,46", "300,0,0", "a,b,c", "", "42,,50"})
        EXPECT_EQ(PanelShades::shadeOfColour(broken), PanelShade::unknown) << broken;
}
