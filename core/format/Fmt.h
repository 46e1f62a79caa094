#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace vexel::Fmt {

// Short texts for numbers, with fixed thresholds for the number of digits so
// that readings do not jitter in width. No locale: the decimal point is ".".

// Whole percent of a fraction: 0.256 → "26%". Negative reads as 0.
[[nodiscard]] std::string percent(double fraction);

// Processor use in cores as percent of one core, or of the machine when
// `cores` is given: 0.05 → "5.0%", 2.0 of 8 → "25%", 0.0004 → "<0.1%".
[[nodiscard]] std::string cpu(double value, std::optional<int> cores = std::nullopt);

// Binary-scaled memory size: 17179869184 → "16.0 GB", 1000000000 → "954 MB".
[[nodiscard]] std::string memory(uint64_t bytes);

// Decimal-scaled size: 1500 → "1.5 KB", 25000000 → "25 MB"; `digits` fixes the decimals.
[[nodiscard]] std::string bytes(double value, std::optional<int> digits = std::nullopt);
[[nodiscard]] std::string bytes(uint64_t count);

// How a transfer rate is counted.
enum class RateUnit { bytes, bits };

// Transfer rate: 2500000 → "2.5 MB/s"; in bits, 1250000 → "10 Mb/s".
[[nodiscard]] std::string rate(double bytesPerSecond, RateUnit unit);

// Power: 0.25 → "250 mW", 3.14 → "3.1 W", 42 → "42 W".
[[nodiscard]] std::string watts(double value);

// Minutes: 75 → "1h 15m", 5 → "5 min".
[[nodiscard]] std::string minutes(int count);

// Compact elapsed time: "42s", "59m", "1h 1m", "1 day", "3 days".
[[nodiscard]] std::string duration(double seconds);

} // namespace vexel::Fmt
