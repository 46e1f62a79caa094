#pragma once

namespace vexel::RoundSteps {

// The least of 1, 2 or 5 × 10ⁿ at or above `value`: the top of a scale that
// reads at a glance (107 → 200, 0.3 → 0.5). 1 for nothing positive.
[[nodiscard]] double roundUp(double value);

// The step between a scale's gridlines under `top`: the largest 1, 2 or
// 5 × 10ⁿ that fits into it at least twice (100 → 50, 2 → 1, 5 → 2).
[[nodiscard]] double gridStep(double top);

} // namespace vexel::RoundSteps
