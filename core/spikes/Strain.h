#pragma once

#include <optional>

namespace vexel {

// How a reading is judged: larger is worse, so the worst of several is their maximum.
enum class Strain { calm = 0, elevated = 1, strained = 2 };

// The strain for 0…2; nothing for any other value.
[[nodiscard]] std::optional<Strain> strainFromRaw(long long raw);

} // namespace vexel
