#pragma once

#include "grouping/AppSort.h"
#include "settings/MenuItemConfig.h"
#include "spikes/SpikeRules.h"
#include "spikes/StrainRules.h"
#include "text/Sentence.h"

#include <nlohmann/json.hpp>

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace vexel {

// The user's configuration, saved as settings.json in the data folder.
// Loading never fails: whatever cannot be read keeps its default, key by key,
// and a number out of its range is brought to the nearest end of it.
struct VexelSettings {
    // The seconds between samples Vexel takes: faster would cost more than
    // it shows; slower would miss what it is there to see.
    static constexpr double shortestSample = 1;
    static constexpr double longestSample = 3600;

    double sampleSeconds = 5.0; // between samples of the desktop app
    CPUScale cpuScale = CPUScale::mac;
    bool networkBits = false;
    int retentionDays = 365;
    int maxHistoryMB = 64;
    int metricsApps = 20; // apps named in the recorder's metrics; the rest are "other"
    std::vector<MenuItemConfig> menuItems = defaultMenuItems();
    StrainRules strain;
    SpikeRules spikes;
    double idleDays = 2.0; // without activity before a dev server counts as idle
    AppSort appSort = AppSort::cpu;
    bool onboarded = false;
    std::optional<double> lastSeen; // when the app last ran, seconds since the epoch

    // idleDays in seconds.
    [[nodiscard]] double idleAfter() const { return idleDays * 86400; }

    // The settings in `file`; all defaults when it is missing or not JSON.
    // Never creates the file. (SettingsFile also says what it could not use.)
    [[nodiscard]] static VexelSettings load(const std::filesystem::path& file);

    // Writes every key afresh, atomically, creating the folder first; for a
    // new file (the demo world's, a test's). The app saves through
    // SettingsFile, which keeps what the user wrote. Throws
    // std::filesystem::filesystem_error.
    void save(const std::filesystem::path& file) const;

    bool operator==(const VexelSettings&) const = default;
};

// A value of a settings file that was not used as written, by its key
// ("sampleSeconds", "strain.cpuElevated"), and the sentence that says so
// ("sampleSeconds must be a number of seconds, 1 to 3600; using 5.").
struct SettingsProblem {
    std::string key;
    Sentence text;

    bool operator==(const SettingsProblem&) const = default;
};

[[nodiscard]] nlohmann::ordered_json toJson(const VexelSettings& settings);
// The settings of a JSON object, key by key; what could not be used as
// written goes to `problems` when given.
[[nodiscard]] VexelSettings settingsFromJson(
    const nlohmann::ordered_json& json, std::vector<SettingsProblem>* problems = nullptr);

} // namespace vexel
