#pragma once

#include "grouping/AppSort.h"
#include "settings/MenuItemConfig.h"
#include "spikes/SpikeRules.h"
#include "spikes/StrainRules.h"

#include <nlohmann/json.hpp>

#include <filesystem>
#include <optional>
#include <vector>

namespace vexel {

// The user's configuration, saved as settings.json in the data folder.
// Loading never fails: whatever cannot be read keeps its default, key by key.
struct VexelSettings {
    double sampleSeconds = 5.0; // between samples of the desktop app
    CPUScale cpuScale = CPUScale::mac;
    bool networkBits = false;
    int retentionDays = 365;
    int maxHistoryMB = 64;
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
    // Never creates the file.
    [[nodiscard]] static VexelSettings load(const std::filesystem::path& file);

    // Writes the settings atomically (a temporary file, then a rename),
    // creating the folder first. Throws std::filesystem::filesystem_error.
    void save(const std::filesystem::path& file) const;

    bool operator==(const VexelSettings&) const = default;
};

[[nodiscard]] nlohmann::ordered_json toJson(const VexelSettings& settings);
[[nodiscard]] VexelSettings settingsFromJson(const nlohmann::ordered_json& json);

} // namespace vexel
