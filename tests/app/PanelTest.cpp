// The panel's readings: short rates and scales, their pictures against
// golden files (calm, amber and red; value, graph and both; one and two
// values; on light and dark panels), the items following the settings, and
// the dropdowns.

#include "DemoModel.h"
#include "format/Fmt.h"
#include "panel/MenuBarController.h"
#include "panel/MenuDropdown.h"
#include "panel/MenuGlyph.h"
#include "panel/MenuReading.h"
#include "support/GoldenImage.h"

#include <QImage>
#include <QSystemTrayIcon>
#include <QTest>
#include <gtest/gtest.h>

#include <filesystem>

using namespace vexel;
using vexel::testing::DemoModel;

namespace {

auto readModel(Platform platform = Platform::macOS)
{
    return vexel::testing::readDemoModel(platform, 3);
}

void expectGolden(const QImage& image, const std::string& name)
{
    vexel::testing::expectGoldenImage(
        image, std::filesystem::path(VEXEL_SOURCE_DIR) / "tests/golden/glyphs" / (name + ".png"));
}

} // namespace

TEST(MenuReading, ShortRates)
{
    EXPECT_EQ(shortRate(950, false), "950");
    EXPECT_EQ(shortRate(1'530'000, false), "1.5M");
    EXPECT_EQ(shortRate(1'530'000, true), "12M"); // bits: eight times the bytes
    EXPECT_EQ(shortRate(2'000'000'000'000, false), "2000G"); // nothing beyond G
    EXPECT_EQ(shortRate(9'999, false), "10.0K"); // under 10 with a suffix: one decimal
    EXPECT_EQ(shortRate(-5, false), "0");
    EXPECT_EQ(shortRate(std::nan(""), false), "0");
}

// The settings' scales reach the panel; what isn't reported shows a dash;
// heat has no graph to draw.
TEST(MenuReading, ScalesAndMissingReadings)
{
    auto demo = readModel();
    auto& model = *demo->model;
    const auto& system = model.frame()->system;
    const auto reading = [&](MenuItemKind kind) { return menuReading(model, {kind, true, MenuItemStyle::both}); };
    EXPECT_EQ(reading(MenuItemKind::thermal).style, MenuItemStyle::value);
    EXPECT_EQ(reading(MenuItemKind::cpu).trace.size(), model.ring().samples().size());
    auto settings = model.settings();
    settings.networkBits = true;
    settings.cpuScale = CPUScale::core;
    model.changeSettings(settings);
    EXPECT_EQ(reading(MenuItemKind::network).text, shortRate(system.net.inRate * 8, false));
    EXPECT_EQ(reading(MenuItemKind::cpu).text, Fmt::percent((system.cpu.user + system.cpu.system) * model.cores()));
    vexel::testing::receiveChanged(model, [](TickResult& tick) { tick.frame.system.gpu.reset(); });
    EXPECT_EQ(reading(MenuItemKind::gpu).text, "—");
}

TEST(MenuGlyph, GoldenPictures)
{
    const std::vector<double> trace{10, 40, 35, 80, 60, 95, 70};
    for (const auto panel : {Appearance::light, Appearance::dark}) {
        const std::string panelName = panel == Appearance::light ? "light" : "dark";
        for (const auto strain : {Strain::calm, Strain::elevated, Strain::strained}) {
            const std::string strainName = strain == Strain::calm ? "calm"
                : strain == Strain::elevated                      ? "amber"
                                                                  : "red";
            for (const auto style : {MenuItemStyle::value, MenuItemStyle::graph, MenuItemStyle::both}) {
                const MenuReading cpu{MenuItemKind::cpu, style, "87%", std::nullopt, trace, 100, strain};
                expectGolden(MenuGlyph::image(cpu, panel, 2),
                    "cpu-" + rawValue(style) + "-" + strainName + "-" + panelName + "@2x");
            }
            const MenuReading network{MenuItemKind::network, MenuItemStyle::value, "1.5M", "120K", {}, 100, strain};
            for (const int scale : {1, 2})
                expectGolden(MenuGlyph::image(network, panel, scale),
                    "network-" + strainName + "-" + panelName + "@" + std::to_string(scale) + "x");
            const MenuReading disk{MenuItemKind::disk, MenuItemStyle::value, "12M", "340K", {}, 100, strain};
            expectGolden(MenuGlyph::image(disk, panel, 2), "disk-" + strainName + "-" + panelName + "@2x");
        }
    }
}

TEST(MenuBarController, ItemsFollowTheSettingsInOrder)
{
    auto demo = readModel();
    auto& model = *demo->model;
    MenuBarController panel(model, Appearance::dark, {[] {}, [] {}, [] {}});
    panel.start();
    using Kinds = std::vector<MenuItemKind>;
    EXPECT_EQ(panel.order(), (Kinds{MenuItemKind::cpu, MenuItemKind::memory, MenuItemKind::network}));

    // A newly enabled reading joins at the end; nothing is re-created.
    auto settings = model.settings();
    settings.menuItems[6].enabled = true; // GPU, last in the list
    model.changeSettings(settings);
    EXPECT_EQ(
        panel.order(), (Kinds{MenuItemKind::cpu, MenuItemKind::memory, MenuItemKind::network, MenuItemKind::gpu}));
    EXPECT_EQ(panel.recreations(), 0);
    // Switched off: just removed.
    settings.menuItems[1].enabled = false;
    model.changeSettings(settings);
    EXPECT_EQ(panel.order(), (Kinds{MenuItemKind::cpu, MenuItemKind::network, MenuItemKind::gpu}));
    EXPECT_EQ(panel.item(MenuItemKind::memory), nullptr);
    EXPECT_EQ(panel.recreations(), 0);
    // Reordered: all of them anew, in the new order.
    std::swap(settings.menuItems[0], settings.menuItems[2]);
    model.changeSettings(settings);
    EXPECT_EQ(panel.order(), (Kinds{MenuItemKind::network, MenuItemKind::cpu, MenuItemKind::gpu}));
    EXPECT_EQ(panel.recreations(), 1);
}

// Opened on fresh figures, and at most one: another item's click while one
// is open only closes it (the panel session test clicks through a real host).
TEST(MenuBarController, ADropdownOpensOnFreshFiguresAndOnlyOneAtATime)
{
    auto demo = readModel();
    auto& model = *demo->model;
    MenuBarController panel(model, Appearance::dark, {[] {}, [] {}, [] {}});
    panel.start();
    panel.clicked(MenuItemKind::memory);
    ASSERT_NE(panel.dropdown(), nullptr);
    EXPECT_TRUE(model.busy());
    demo->settle();
    EXPECT_FALSE(panel.dropdown()->appRows().isEmpty());
    panel.clicked(MenuItemKind::network);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(panel.dropdown(), nullptr);
}

TEST(MenuDropdown, ReadingsWithoutPerAppFiguresSaySoInTheirPlatformsWords)
{
    auto demo = readModel(Platform::linux);
    auto& model = *demo->model;
    vexel::testing::receiveChanged(model, [](TickResult& tick) {
        tick.frame.system.battery.reset();
        tick.frame.system.sensors
            = {{{"k10temp", "Tctl", 71, std::nullopt, std::nullopt}, {"nvme", "Composite", 39, 81.85, 84.85}},
                {{"thinkpad", "fan1", 3100}}};
    });
    const MenuDropdown::Actions none{[] {}, [] {}, [] {}};
    EXPECT_EQ(MenuDropdown(model, MenuItemKind::gpu, none).note(),
        QStringLiteral("Vexel doesn't read GPU use per app on Linux."));
    EXPECT_EQ(MenuDropdown(model, MenuItemKind::battery, none).note(),
        QStringLiteral("No battery — this computer runs on mains power."));
    const MenuDropdown heat(model, MenuItemKind::thermal, none);
    EXPECT_EQ(heat.readouts().mid(1),
        (QStringList{"CPU · Tctl  71 °C", "SSD · Composite  39 °C", "Laptop · fan1  3100 rpm"}));
    EXPECT_TRUE(heat.appRows().isEmpty());
    const MenuDropdown memory(model, MenuItemKind::memory, none);
    EXPECT_TRUE(memory.note().isEmpty());
    EXPECT_FALSE(memory.appRows().isEmpty());
}
