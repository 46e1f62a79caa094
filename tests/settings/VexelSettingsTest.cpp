#include "settings/VexelSettings.h"

#include "support/TempFolder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sys/stat.h>

using namespace vexel;
namespace fs = std::filesystem;

namespace {

class SettingsFile : public ::testing::Test {
protected:
    fs::path write(const std::string& text) const
    {
        const auto file = m_dir.path() / "settings.json";
        std::ofstream(file) << text;
        return file;
    }

    vexel::testing::TempFolder m_dir{"vexel-settings"};
};

} // namespace

TEST_F(SettingsFile, AnEmptyObjectLoadsAsDefaults)
{
    EXPECT_EQ(VexelSettings::load(write("{}")), VexelSettings{});
}

TEST_F(SettingsFile, EachKeyFallsBackOnItsOwn)
{
    const auto settings = VexelSettings::load(write(R"({
        "retentionDays": "30", "sampleSeconds": 10, "cpuScale": "core", "appSort": "sideways",
        "networkBits": 1, "maxHistoryMB": 12.0, "idleDays": 0.5, "onboarded": true, "lastSeen": 99.5,
        "strain": {"cpuElevated": 0.5, "batteryStrained": "low"},
        "spikes": [1, 2],
        "menuItems": [{"kind": "gpu", "enabled": true, "style": "value"}, {"kind": "disk", "enabled": false, "style": "both"}]
    })"));
    EXPECT_EQ(settings.retentionDays, 365); // a string where a number belongs
    EXPECT_EQ(settings.sampleSeconds, 10.0);
    EXPECT_EQ(settings.cpuScale, CPUScale::core);
    EXPECT_EQ(settings.appSort, AppSort::cpu); // unknown raw value
    EXPECT_FALSE(settings.networkBits); // a number is not a boolean
    EXPECT_EQ(settings.maxHistoryMB, 12);
    EXPECT_EQ(settings.idleAfter(), 43200);
    EXPECT_TRUE(settings.onboarded);
    EXPECT_EQ(settings.lastSeen, 99.5);
    EXPECT_EQ(settings.strain.cpuElevated, 0.5);
    EXPECT_EQ(settings.strain.batteryStrained, 10);
    EXPECT_EQ(settings.spikes, SpikeRules{});
    ASSERT_EQ(settings.menuItems.size(), 2u);
    EXPECT_EQ(settings.menuItems[0], (MenuItemConfig{MenuItemKind::gpu, true, MenuItemStyle::value}));
}

TEST_F(SettingsFile, ABadMenuItemKeepsTheDefaultList)
{
    const auto settings = VexelSettings::load(
        write(R"({"menuItems": [{"kind": "cpu", "enabled": true, "style": "value"}, {"kind": "fans"}]})"));
    EXPECT_EQ(settings.menuItems, defaultMenuItems());
    EXPECT_EQ(VexelSettings::load(write(R"({"maxHistoryMB": 1.5, "retentionDays": 1e30})")), VexelSettings{});
}

TEST_F(SettingsFile, NotJsonOrMissingLoadsAsDefaultsAndCreatesNothing)
{
    EXPECT_EQ(VexelSettings::load(write("retentionDays = 30\n")), VexelSettings{});
    EXPECT_EQ(VexelSettings::load(write("[1, 2, 3]")), VexelSettings{});
    const auto missing = m_dir.path() / "nowhere" / "settings.json";
    EXPECT_EQ(VexelSettings::load(missing), VexelSettings{});
    EXPECT_FALSE(fs::exists(missing.parent_path()));
}

TEST_F(SettingsFile, SaveCreatesTheFolderAndReadsBackTheSame)
{
    VexelSettings settings;
    settings.sampleSeconds = 2.5;
    settings.cpuScale = CPUScale::core;
    settings.menuItems = {{MenuItemKind::battery, true, MenuItemStyle::graph}};
    settings.spikes.batteryDrop = 20;
    settings.lastSeen = 1795300000.25;
    const auto file = m_dir.path() / "a" / "b" / "settings.json";
    settings.save(file);
    EXPECT_EQ(VexelSettings::load(file), settings);
    // Saving again replaces the file and leaves no temporary behind.
    settings.onboarded = true;
    settings.save(file);
    EXPECT_EQ(VexelSettings::load(file), settings);
    EXPECT_EQ(std::distance(fs::directory_iterator(file.parent_path()), fs::directory_iterator()), 1);
}

TEST_F(SettingsFile, SaveReportsFileSystemErrors)
{
    const auto blocker = write("{}");
    EXPECT_THROW(VexelSettings{}.save(blocker / "settings.json"), fs::filesystem_error);
    if (::geteuid() != 0) {
        const auto locked = m_dir.path() / "locked";
        fs::create_directories(locked);
        ::chmod(locked.c_str(), 0500);
        EXPECT_THROW(VexelSettings{}.save(locked / "settings.json"), fs::filesystem_error);
        ::chmod(locked.c_str(), 0700);
    }
}
