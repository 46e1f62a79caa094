#pragma once

#include "format/Fmt.h"
#include "settings/MenuItemConfig.h"
#include "spikes/Strain.h"

#include <optional>
#include <string>
#include <vector>

namespace vexel {

class AppModel;

// What one panel item draws: its value (two stacked values for rates in and
// out), the recent trace for its graph, and its strain.
struct MenuReading {
    MenuItemKind kind = MenuItemKind::cpu;
    MenuItemStyle style = MenuItemStyle::value;
    std::string text; // "34%", "12K", "Cool"
    std::optional<std::string> text2; // the second rate: upload, or disk writes
    std::vector<double> trace; // oldest first, on the reading's own scale
    double traceTop = 100; // the value at the top of the graph
    Strain strain = Strain::calm;

    bool operator==(const MenuReading&) const = default;
};

// A rate in the panel's short form: bits when asked (×8), negative as "0",
// divided by 1000 while at least 1000 with K, M or G after, "%.1f" under 10
// with a suffix and "%.0f" otherwise; nothing beyond G (2000G).
[[nodiscard]] std::string shortRate(double bytesPerSecond, bool bits);

// The unit a kind's trace is a rate in: the network's as the settings say,
// the disk's in bytes; nothing for a share or a level.
[[nodiscard]] std::optional<Fmt::RateUnit> rateUnit(const AppModel& model, MenuItemKind kind);

// The reading of `config`'s kind in the model's latest frame and ring.
[[nodiscard]] MenuReading menuReading(const AppModel& model, const MenuItemConfig& config);

} // namespace vexel
