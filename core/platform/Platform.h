#pragma once

#include <string>

namespace vexel {

// The operating system whose words the texts use. On macOS (and in the demo
// world, which is a Mac) every text reads as originally written; on Linux the
// texts name the computer truthfully.
enum class Platform { macOS, linux };

// The platform this build runs on, fixed at compile time.
[[nodiscard]] Platform livePlatform();

// "Mac" on macOS, "computer" on Linux: for "this Mac", "your Mac".
[[nodiscard]] std::string machineWord(Platform platform);

// "macOS" or "Linux": the name of the operating system in texts.
[[nodiscard]] std::string systemName(Platform platform);

} // namespace vexel
