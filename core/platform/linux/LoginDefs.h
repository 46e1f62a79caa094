#pragma once

#include <cstdint>
#include <string_view>

namespace vexel::LoginDefs {

// The first uid of ordinary users when login.defs does not say: shadow's
// own default, and Debian's, Fedora's and Arch's setting.
inline constexpr uint32_t defaultUidMin = 1000;

// UID_MIN of a login.defs text ("UID_MIN\t\t\t 1000"); the default when the
// line is missing, commented out or not a number.
[[nodiscard]] uint32_t parseUidMin(std::string_view text);

// UID_MIN of this machine's /etc/login.defs.
[[nodiscard]] uint32_t liveUidMin();

} // namespace vexel::LoginDefs
