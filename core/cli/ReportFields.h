#pragma once

#include <nlohmann/json.hpp>

#include <cstdint>
#include <optional>
#include <string>

namespace vexel::ReportFields {

// Tolerant reads of a report: a missing key, or a value of another type, is
// nothing, so that a renderer skips the line instead of failing.

// The value under `key` when `object` is an object holding it.
[[nodiscard]] const nlohmann::json* field(const nlohmann::json& object, const char* key);
[[nodiscard]] std::optional<double> number(const nlohmann::json& object, const char* key);
// A byte count: the number under `key` as a whole, unsigned count; 0 when missing or negative.
[[nodiscard]] uint64_t byteCount(const nlohmann::json& object, const char* key);
[[nodiscard]] std::optional<std::string> text(const nlohmann::json& object, const char* key);
[[nodiscard]] std::optional<bool> flag(const nlohmann::json& object, const char* key);
// The array under `key`; an empty array when there is none.
[[nodiscard]] const nlohmann::json& list(const nlohmann::json& object, const char* key);

} // namespace vexel::ReportFields
