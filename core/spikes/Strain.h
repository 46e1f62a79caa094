#pragma once

namespace vexel {

// How a reading is judged: larger is worse, so the worst of several is their maximum.
enum class Strain { calm = 0, elevated = 1, strained = 2 };

} // namespace vexel
