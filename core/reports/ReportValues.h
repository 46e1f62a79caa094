#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace vexel::ReportValues {

// How numbers appear in reports, the same for the command line and the MCP tools.

// A fraction as percent with one decimal, rounded half away from zero: 0.12345 → 12.3.
[[nodiscard]] double percent(double fraction);
// A share of the whole machine as percent: the fraction is capped at 1 first.
[[nodiscard]] double machinePercent(double fraction);
// A value rounded half away from zero to `decimals` places.
[[nodiscard]] double rounded(double value, int decimals);
// Bytes per second as a whole number (the fraction dropped); anything that is
// not a finite number in range, or is negative, reads as 0.
[[nodiscard]] int64_t wholeRate(double bytesPerSecond);
// Bytes as a whole number; negative or non-finite amounts read as 0.
[[nodiscard]] uint64_t wholeBytes(double bytes);
// An instant as ISO 8601 in UTC, to the second: "2026-11-22T04:16:35Z".
[[nodiscard]] std::string iso8601(double epoch);
// The instant of an ISO 8601 text with "Z" or an offset ("+01:00", "+0100");
// nothing for any other text.
[[nodiscard]] std::optional<double> parseISO8601(const std::string& text);

} // namespace vexel::ReportValues
