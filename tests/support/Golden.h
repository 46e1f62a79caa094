#pragma once

#include <string>

namespace vexel::testing {

// Compares `actual` with the golden file tests/golden/<name>; with
// UPDATE_GOLDEN=1 in the environment it rewrites the file instead (review the
// diff). Returns an empty string when they agree, else what differs.
[[nodiscard]] std::string compareGolden(const std::string& name, const std::string& actual);

} // namespace vexel::testing
