#pragma once

#include "time/TimeZone.h"

#include <nlohmann/json.hpp>

#include <string>

namespace vexel::VexelCLI {

// The reports as plain text for a terminal: labels padded to a column and
// space-padded tables. Each reads only the report's own keys, skips a line
// whose key is missing, and returns lines joined with "\n" without a trailing
// newline. Times are shown in `zone`.

[[nodiscard]] std::string statusText(const nlohmann::json& report);
[[nodiscard]] std::string appsText(const nlohmann::json& report);
[[nodiscard]] std::string appText(const nlohmann::json& report);
[[nodiscard]] std::string portsText(const nlohmann::json& report);
// Project folders under `home` are shown from ~.
[[nodiscard]] std::string serversText(
    const nlohmann::json& report, const std::string& home, const TimeZone& zone = TimeZone::current());
[[nodiscard]] std::string dockerText(const nlohmann::json& report);
[[nodiscard]] std::string historyText(const nlohmann::json& report, const TimeZone& zone = TimeZone::current());
[[nodiscard]] std::string spikesText(const nlohmann::json& report, const TimeZone& zone = TimeZone::current());

// How a report's time is shown: "2026-11-22 14:05", or "Sun 14:05".
enum class TimeForm { date, weekday };

// An ISO 8601 time of a report in `zone`, in `form`; the text itself when it is not a time.
[[nodiscard]] std::string localTime(const std::string& iso, const TimeZone& zone, TimeForm form);

} // namespace vexel::VexelCLI
