// The panel's readings: their texts and short rates, their pictures against
// golden files (calm, amber and red; value, graph and both; one and two
// values; on light and dark panels), the items following the settings, and
// the dropdown toggled by clicks.

#include "DemoModel.h"
#include "format/Fmt.h"
#include "look/StrainColours.h"
#include "panel/MenuBarController.h"
#include "panel/MenuDropdown.h"
#include "panel/MenuGlyph.h"
#include "panel/MenuReading.h"

#include <QImage>
#include <QSystemTrayIcon>
#include <QTest>
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>

using namespace vexel;
using vexel::testing::DemoModel;

namespace {

std::unique_ptr<DemoModel> readModel(Platform platform = Platform::macOS)
{
    auto demo = std::make_unique<DemoModel>(std::function<void(VexelSettings&)>{}, platform);
    for (int tick = 0; tick < 3; ++tick) {
        demo->now += 2;
        demo->model->refresh(tick == 0);
        demo->settle();
    }
    return demo;
}

// Compares with the golden picture of that name; VEXEL_UPDATE_GOLDEN=1 writes it instead.
void expectGolden(const QImage& image, const std::string& name)
{
    const auto file = std::filesystem::path(VEXEL_SOURCE_DIR) / "tests" / "golden" / "glyphs" / (name + ".png");
    const QImage picture = image.convertToFormat(QImage::Format_ARGB32);
    if (const char* update = std::getenv("VEXEL_UPDATE_GOLDEN"); update && std::string(update) == "1") {
        std::filesystem::create_directories(file.parent_path());
        ASSERT_TRUE(picture.save(QString::fromStdString(file.string())));
        return;
    }
    QImage golden(QString::fromStdString(file.string()));
    ASSERT_FALSE(golden.isNull()) << "missing golden picture " << file;
    golden = golden.convertToFormat(QImage::Format_ARGB32);
    golden.setDevicePixelRatio(picture.devicePixelRatio());
    EXPECT_EQ(picture, golden) << name << " differs from its golden picture";
}

} // namespace

TEST(MenuReading, ShortRates)
{
    EXPECT_EQ(shortRate(950, false), "950");
    EXPECT_EQ(shortRate(12'345, false), "12K");
    EXPECT_EQ(shortRate(1'530'000, false), "1.5M");
    EXPECT_EQ(shortRate(1'530'000, true), "12M"); // bits: eight times the bytes
    EXPECT_EQ(shortRate(2'000'000'000'000, false), "2000G"); // nothing beyond G
    EXPECT_EQ(shortRate(9'999, false), "10.0K"); // under 10 with a suffix: one decimal
    EXPECT_EQ(shortRate(999, false), "999");
    EXPECT_EQ(shortRate(-5, false), "0");
    EXPECT_EQ(shortRate(std::nan(""), false), "0");
    EXPECT_EQ(shortRate(0, true), "0");
}

TEST(MenuReading, EachKindFromTheFrame)
{
    auto demo = readModel();
    auto& model = *demo->model;
    const auto& system = model.frame->system;
    const auto reading = [&](MenuItemKind kind) { return menuReading(model, {kind, true, MenuItemStyle::both}); };
    EXPECT_EQ(reading(MenuItemKind::cpu).text, Fmt::percent(system.cpu.user + system.cpu.system));
    EXPECT_EQ(reading(MenuItemKind::cpu).trace.size(), model.ring.samples().size());
    EXPECT_EQ(reading(MenuItemKind::memory).text, Fmt::percent(system.memory.usedFraction()));
    EXPECT_EQ(reading(MenuItemKind::network).text, shortRate(system.net.inRate, false));
    EXPECT_EQ(reading(MenuItemKind::network).text2, shortRate(system.net.outRate, false));
    EXPECT_EQ(reading(MenuItemKind::disk).text2, shortRate(system.disk.writeRate, false));
    EXPECT_EQ(reading(MenuItemKind::thermal).text, title(system.thermal));
    EXPECT_EQ(reading(MenuItemKind::thermal).style, MenuItemStyle::value); // heat has no graph
    EXPECT_EQ(reading(MenuItemKind::battery).text, std::to_string(system.battery->percent) + "%");

    // Bits, the per-core scale, and what isn't reported.
    auto settings = model.settings;
    settings.networkBits = true;
    settings.cpuScale = CPUScale::core;
    model.changeSettings(settings);
    EXPECT_EQ(reading(MenuItemKind::network).text, shortRate(system.net.inRate * 8, false));
    EXPECT_EQ(reading(MenuItemKind::cpu).text, Fmt::percent((system.cpu.user + system.cpu.system) * model.cores));
    model.frame->system.gpu.reset();
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
        }
    }
}

TEST(MenuGlyph, CalmFollowsThePanelAndStrainIsRed)
{
    const MenuReading calm{MenuItemKind::memory, MenuItemStyle::value, "54%", std::nullopt, {}, 100, Strain::calm};
    // The picture's darkest or lightest ink is the panel's text colour.
    const auto inkOf = [](const QImage& image) {
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                if (image.pixelColor(x, y).alpha() == 255)
                    return image.pixelColor(x, y);
        return QColor();
    };
    EXPECT_EQ(inkOf(MenuGlyph::image(calm, Appearance::dark, 2)), MenuGlyph::ink(Strain::calm, Appearance::dark));
    EXPECT_EQ(inkOf(MenuGlyph::image(calm, Appearance::light, 2)), MenuGlyph::ink(Strain::calm, Appearance::light));
    EXPECT_GT(MenuGlyph::ink(Strain::calm, Appearance::dark).lightness(), 200);
    EXPECT_LT(MenuGlyph::ink(Strain::calm, Appearance::light).lightness(), 60);
    auto strained = calm;
    strained.strain = Strain::strained;
    EXPECT_EQ(
        inkOf(MenuGlyph::image(strained, Appearance::dark, 2)), Look::strainColour(Appearance::dark, Strain::strained));
    // Square, at both scales.
    EXPECT_EQ(MenuGlyph::image(calm, Appearance::dark, 1).size(), QSize(MenuGlyph::side, MenuGlyph::side));
    EXPECT_EQ(MenuGlyph::image(calm, Appearance::dark, 2).size(), QSize(2 * MenuGlyph::side, 2 * MenuGlyph::side));
}

TEST(MenuBarController, ItemsFollowTheSettingsInOrder)
{
    auto demo = readModel();
    auto& model = *demo->model;
    MenuBarController panel(model, Appearance::dark, Appearance::light, {[] {}, [] {}});
    panel.start();
    using Kinds = std::vector<MenuItemKind>;
    EXPECT_EQ(panel.order(), (Kinds{MenuItemKind::cpu, MenuItemKind::memory, MenuItemKind::network}));
    ASSERT_NE(panel.item(MenuItemKind::cpu), nullptr);
    EXPECT_TRUE(panel.item(MenuItemKind::cpu)->toolTip().startsWith("CPU "));

    // A newly enabled reading joins at the end; nothing is re-created.
    auto settings = model.settings;
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
    // All off: none left.
    for (auto& item : settings.menuItems)
        item.enabled = false;
    model.changeSettings(settings);
    EXPECT_TRUE(panel.order().empty());
}

TEST(MenuBarController, AClickOpensTheDropdownAndASecondClosesIt)
{
    auto demo = readModel();
    auto& model = *demo->model;
    MenuBarController panel(model, Appearance::dark, Appearance::light, {[] {}, [] {}});
    panel.start();
    panel.clicked(MenuItemKind::cpu);
    ASSERT_NE(panel.dropdown(), nullptr);
    EXPECT_EQ(panel.dropdown()->kind(), MenuItemKind::cpu);
    EXPECT_TRUE(model.busy()); // it opens on fresh figures
    demo->settle();
    EXPECT_FALSE(panel.dropdown()->appRows().isEmpty());
    panel.clicked(MenuItemKind::cpu);
    QTest::qWait(0);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(panel.dropdown(), nullptr);
    // At most one: another item's click while one is open only closes it.
    panel.clicked(MenuItemKind::memory);
    ASSERT_NE(panel.dropdown(), nullptr);
    panel.clicked(MenuItemKind::network);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(panel.dropdown(), nullptr);
}

TEST(MenuDropdown, ReadingsWithoutPerAppFiguresSaySoInTheirPlatformsWords)
{
    auto demo = readModel(Platform::linux);
    auto& model = *demo->model;
    model.frame->system.battery.reset();
    model.frame->system.sensors
        = {{{"k10temp", "Tctl", 71, std::nullopt, std::nullopt}, {"nvme", "Composite", 39, 81.85, 84.85}},
            {{"thinkpad", "fan1", 3100}}};
    const MenuDropdown::Actions none{[] {}, [] {}};
    EXPECT_EQ(MenuDropdown(model, MenuItemKind::gpu, Appearance::light, none).note(),
        QStringLiteral("Vexel doesn't read GPU use per app on Linux."));
    EXPECT_EQ(MenuDropdown(model, MenuItemKind::battery, Appearance::light, none).note(),
        QStringLiteral("No battery — this computer runs on mains power."));
    const MenuDropdown heat(model, MenuItemKind::thermal, Appearance::dark, none);
    EXPECT_EQ(heat.readouts().mid(1),
        (QStringList{"CPU · Tctl  71 °C", "SSD · Composite  39 °C", "Laptop · fan1  3100 rpm"}));
    EXPECT_TRUE(heat.appRows().isEmpty());
    const MenuDropdown memory(model, MenuItemKind::memory, Appearance::dark, none);
    EXPECT_TRUE(memory.note().isEmpty());
    EXPECT_FALSE(memory.appRows().isEmpty());
}
