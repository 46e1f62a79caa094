#pragma once

#include "devservers/ListenSocket.h"

#include <string_view>
#include <vector>

namespace vexel::SsListenParser {

// Listening sockets from `ss -ltnpH`: one per process named in each line's
// users:(…) list. Lines without an owner (other users' sockets, unless root)
// are left out. "0.0.0.0", "::" and "*" become "*"; brackets and "%ifname" go.
[[nodiscard]] std::vector<ListenSocket> parse(std::string_view text);

} // namespace vexel::SsListenParser
