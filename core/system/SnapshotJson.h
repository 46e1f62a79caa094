#pragma once

#include "system/SystemSnapshot.h"

#include <nlohmann/json.hpp>

#include <optional>

namespace vexel {

// The JSON of the snapshot records. Keys come out in the records' field order;
// absent optionals are left out; thermal level and memory pressure are their
// raw integers; derived values are not encoded. `time` is seconds since the
// epoch unless the caller re-encodes it.
[[nodiscard]] nlohmann::ordered_json toJson(const SystemSnapshot& snapshot);
[[nodiscard]] nlohmann::ordered_json toJson(const CPUStats& cpu);
[[nodiscard]] nlohmann::ordered_json toJson(const MemoryStats& memory);
[[nodiscard]] nlohmann::ordered_json toJson(const VolumeInfo& volume);
[[nodiscard]] nlohmann::ordered_json toJson(const DiskStats& disk);
[[nodiscard]] nlohmann::ordered_json toJson(const NetStats& net);
[[nodiscard]] nlohmann::ordered_json toJson(const GPUStats& gpu);
[[nodiscard]] nlohmann::ordered_json toJson(const BatteryStats& battery);

// Decoding fails (nothing) when a required key is missing, a value has the
// wrong type, or a raw level is out of range. A missing optional key reads as absent.
[[nodiscard]] std::optional<SystemSnapshot> snapshotFromJson(const nlohmann::ordered_json& json);
[[nodiscard]] std::optional<BatteryStats> batteryFromJson(const nlohmann::ordered_json& json);

} // namespace vexel
