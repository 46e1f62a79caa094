#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace vexel {

// The orders an app list can take, shared by settings, the command line, the
// MCP tools and the apps page.
enum class AppSort { cpu, memory, energy, disk, network };

[[nodiscard]] std::string rawValue(AppSort sort);
[[nodiscard]] std::optional<AppSort> appSortFromRaw(std::string_view raw);

// How CPU percentages are scaled: share of the whole machine, or of one core.
enum class CPUScale { mac, core };

[[nodiscard]] std::string rawValue(CPUScale scale);
[[nodiscard]] std::optional<CPUScale> cpuScaleFromRaw(std::string_view raw);

} // namespace vexel
