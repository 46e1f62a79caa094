#include "settings/VexelSettings.h"

#include "format/CFormat.h"
#include "io/Files.h"
#include "settings/SettingsFile.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <filesystem>
#include <fstream>
#include <sys/stat.h>

using namespace vexel;
using json = nlohmann::ordered_json;
namespace fs = std::filesystem;

namespace {

class SettingsJson : public ::testing::Test {
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

TEST_F(SettingsJson, EachKeyFallsBackOnItsOwn)
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

TEST_F(SettingsJson, ABadMenuItemKeepsTheDefaultList)
{
    const auto settings = VexelSettings::load(
        write(R"({"menuItems": [{"kind": "cpu", "enabled": true, "style": "value"}, {"kind": "fans"}]})"));
    EXPECT_EQ(settings.menuItems, defaultMenuItems());
    EXPECT_EQ(VexelSettings::load(write(R"({"menuItems": [{"kind": "cpu", "enabled": true, "style": "value"},
        {"kind": "cpu", "enabled": false, "style": "both"}]})"))
                  .menuItems,
        defaultMenuItems())
        << "a kind twice";
}

// An empty object, or no file, is all defaults; loading creates nothing.
// (Files that are not settings at all: WhatTheUserWroteIsNeverOverwrittenOnAGuess.)
TEST_F(SettingsJson, NothingWrittenIsAllDefaultsAndLoadingCreatesNothing)
{
    EXPECT_EQ(VexelSettings::load(write("{}")), VexelSettings{});
    const auto missing = m_dir.path() / "nowhere" / "settings.json";
    EXPECT_EQ(SettingsFile::load(missing).state(), SettingsFile::State::missing);
    EXPECT_EQ(VexelSettings::load(missing), VexelSettings{});
    EXPECT_FALSE(fs::exists(missing.parent_path()));
}

TEST_F(SettingsJson, SaveReportsFileSystemErrors)
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

// Numbers are brought into their range, and what was not used as written is
// said once, by name, with what is used instead.
TEST_F(SettingsJson, NumbersOutOfRangeAreBroughtInAndSaid)
{
    struct Case {
        const char* written;
        double sampleSeconds;
        int retentionDays;
    };
    const Case cases[] = {
        {"0", 1, 1},
        {"-1", 1, 1},
        {"0.001", 1, 365}, // not a whole number of days: the default
        {"1e308", 3600, 3650},
        {"86400", 3600, 3650},
    };
    for (const auto& c : cases) {
        const auto file = SettingsFile::load(
            write(std::string(R"({"sampleSeconds": )") + c.written + R"(, "retentionDays": )" + c.written + "}"));
        EXPECT_EQ(file.settings().sampleSeconds, c.sampleSeconds) << c.written;
        EXPECT_EQ(file.settings().retentionDays, c.retentionDays) << c.written;
        ASSERT_EQ(file.problems().size(), 2u) << c.written;
        EXPECT_EQ(file.problems()[0].text.english(),
            "sampleSeconds must be a number of seconds, 1 to 3600; using " + cformat("%g", c.sampleSeconds) + ".");
        EXPECT_EQ(file.problems()[1].key, "retentionDays");
        EXPECT_FALSE(file.historyLimitsTrusted()) << "history is not expired on a limit the user didn't write";
    }
    const auto wrong = SettingsFile::load(write(R"({"sampleSeconds": "fast", "strain": {"cpuStrained": 2},
        "cpuScale": "half", "networkBits": "yes", "spikes": 7})"));
    std::vector<std::string> said;
    for (const auto& problem : wrong.problems())
        said.push_back(problem.text.english());
    EXPECT_EQ(said,
        (std::vector<std::string>{"sampleSeconds must be a number of seconds, 1 to 3600; using 5.",
            "networkBits must be true or false; using false.", R"(cpuScale must be "mac" or "core"; using "mac".)",
            "strain.cpuStrained must be a fraction, 0 to 1; using 1.",
            "spikes must be an object of thresholds; using the defaults."}));
    EXPECT_TRUE(wrong.historyLimitsTrusted()) << "the limits were left out: Vexel's own apply";
    EXPECT_TRUE(SettingsFile::load(write(R"({"retentionDays": 730})")).historyLimitsTrusted());
}

// Files the user wrote that Vexel cannot read stay byte for byte what they
// were after Vexel's own saves; a value Vexel didn't change stays as written,
// wrong or not, and keys it doesn't know survive, in their places.
TEST_F(SettingsJson, WhatTheUserWroteIsNeverOverwrittenOnAGuess)
{
    std::string big = R"({"sampleSeconds": 2, "notes": ")" + std::string(5 << 20, 'x') + "\"}";
    for (const std::string& unreadable : {std::string("{\n  \"retentionDays\": 730,\n}\n"),
             std::string("\x89PNG\r\n\x1a\n garbage"), std::string("[1, 2, 3]"), big}) {
        const auto path = write(unreadable);
        auto file = SettingsFile::load(path);
        EXPECT_EQ(file.state(), SettingsFile::State::unreadable);
        ASSERT_TRUE(file.failure());
        EXPECT_FALSE(file.historyLimitsTrusted());
        VexelSettings later = file.settings();
        later.lastSeen = 1'800'000'000;
        later.onboarded = true;
        const auto outcome = file.save(later, SettingsFile::Saving::automatic);
        EXPECT_FALSE(outcome.written);
        EXPECT_NE(english(outcome.note).find("leaves the file as it is"), std::string::npos) << english(outcome.note);
        EXPECT_EQ(Files::read(path.string(), 8 << 20), unreadable);
    }
    const auto path = write(R"({
  "zNote": "mine",
  "sampleSeconds": "fast",
  "retentionDays": 730,
  "future": {"a": [1, 2]},
  "strain": {"cpuElevated": 0.5, "unknown": true}
})");
    auto file = SettingsFile::load(path);
    VexelSettings changed = file.settings();
    changed.lastSeen = 1'800'000'000;
    changed.strain.gpuStrained = 0.9;
    EXPECT_TRUE(file.save(changed, SettingsFile::Saving::automatic).written);
    const auto saved = json::parse(*Files::read(path.string()));
    EXPECT_EQ(saved["zNote"], "mine");
    EXPECT_EQ(saved["sampleSeconds"], "fast") << "not Vexel's to correct";
    EXPECT_EQ(saved["retentionDays"], 730);
    EXPECT_EQ(saved["future"], json::parse(R"({"a": [1, 2]})"));
    EXPECT_EQ(saved["strain"]["unknown"], true);
    EXPECT_EQ(saved["strain"]["gpuStrained"], 0.9);
    EXPECT_EQ(saved["lastSeen"], 1'800'000'000);
    EXPECT_EQ(saved.begin().key(), "zNote") << "keys keep their places";
    EXPECT_EQ(SettingsFile::load(path).settings(), changed);
}

// Another Vexel process (the recorder beside the window) saving when it last
// ran keeps the change the user just made in the window.
TEST_F(SettingsJson, TwoProcessesSavingKeepEachOthersChanges)
{
    const auto path = write(R"({"sampleSeconds": 5})");
    auto window = SettingsFile::load(path);
    auto recorder = SettingsFile::load(path);
    VexelSettings faster = window.settings();
    faster.sampleSeconds = 2;
    ASSERT_TRUE(window.save(faster, SettingsFile::Saving::userChange).written);
    VexelSettings ran = recorder.settings();
    ran.lastSeen = 1'800'000'000;
    ASSERT_TRUE(recorder.save(ran, SettingsFile::Saving::automatic).written);
    const auto both = VexelSettings::load(path);
    EXPECT_EQ(both.sampleSeconds, 2);
    EXPECT_EQ(both.lastSeen, 1'800'000'000);
}

// A settings file kept in a dotfiles folder and linked in stays a link: the
// file it names is written, with its permissions.
TEST_F(SettingsJson, ALinkIsWrittenThrough)
{
    const auto dotfiles = m_dir.path() / "dotfiles";
    fs::create_directories(dotfiles);
    std::ofstream(dotfiles / "vexel.json") << R"({"sampleSeconds": 10})";
    fs::permissions(dotfiles / "vexel.json", fs::perms::owner_read | fs::perms::owner_write | fs::perms::group_read);
    const auto link = m_dir.path() / "settings.json";
    fs::create_symlink("dotfiles/vexel.json", link);
    auto linked = SettingsFile::load(link);
    VexelSettings changed = linked.settings();
    changed.onboarded = true;
    ASSERT_TRUE(linked.save(changed, SettingsFile::Saving::automatic).written);
    EXPECT_TRUE(fs::is_symlink(link));
    EXPECT_EQ(VexelSettings::load(dotfiles / "vexel.json"), changed);
    EXPECT_EQ(fs::status(dotfiles / "vexel.json").permissions() & fs::perms::all,
        fs::perms::owner_read | fs::perms::owner_write | fs::perms::group_read);
    EXPECT_EQ(std::distance(fs::directory_iterator(dotfiles), fs::directory_iterator()), 1) << "no temporary left";
}

// A change the user makes while the file can't be read holds for the run
// and is said not to be saved; the file stays as it is. The history limits
// stay stand-ins for the whole run, even once the file is put right, unless
// the user sets them: 365 days must never expire the two years they wrote.
TEST_F(SettingsJson, AnUnreadableFileTakesNoChangeAndItsLimitsStayStandIns)
{
    const std::string broken = "{\"retentionDays\": 730,}";
    const auto path = write(broken);
    auto file = SettingsFile::load(path);
    VexelSettings mine = file.settings();
    mine.sampleSeconds = 30;
    const auto refused = file.save(mine, SettingsFile::Saving::userChange);
    EXPECT_FALSE(refused.written);
    EXPECT_TRUE(english(refused.note).starts_with("Your change holds until Vexel quits but can't be saved. "))
        << english(refused.note);
    EXPECT_EQ(Files::read(path.string()), broken);
    EXPECT_FALSE(file.historyLimitsTrusted());

    // Put right by hand while Vexel runs: the next save writes the change into it, and keeps its 730.
    write("{\"retentionDays\": 730}");
    mine.lastSeen = 1'800'000'000;
    ASSERT_TRUE(file.save(mine, SettingsFile::Saving::automatic).written);
    const auto saved = VexelSettings::load(path);
    EXPECT_EQ(saved.sampleSeconds, 30);
    EXPECT_EQ(saved.retentionDays, 730);
    EXPECT_FALSE(file.historyLimitsTrusted()) << "this run still holds the stand-in 365";

    mine.retentionDays = 182; // set in the window: the user's own
    mine.maxHistoryMB = 128;
    ASSERT_TRUE(file.save(mine, SettingsFile::Saving::userChange).written);
    EXPECT_TRUE(file.historyLimitsTrusted());
}
