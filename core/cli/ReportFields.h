#pragma once

#include "json/JsonFields.h"

#include <nlohmann/json.hpp>

#include <cstdint>
#include <string_view>

namespace vexel::ReportFields {

// Readings of a report for the renderers: JsonFields' own, and two of their
// own. A missing key or a value of another kind reads as nothing, so that a
// renderer skips the line instead of failing.
using JsonFields::field;
using JsonFields::value;

// A byte count: the number under `key` as a whole, unsigned count; 0 when missing or negative.
[[nodiscard]] uint64_t byteCount(const nlohmann::json& object, std::string_view key);
// The array under `key`; an empty array when there is none.
[[nodiscard]] const nlohmann::json& list(const nlohmann::json& object, std::string_view key);

} // namespace vexel::ReportFields
