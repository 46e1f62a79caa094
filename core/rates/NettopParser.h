#pragma once

#include "rates/NetSource.h"

#include <string_view>

namespace vexel::NettopParser {

// Per-process byte counters from `nettop -P -L 1 -x -J bytes_in,bytes_out`:
// lines "name.pid,bytes_in,bytes_out,". The header and malformed lines are
// skipped; lines of one pid add up.
[[nodiscard]] NetCounters parse(std::string_view text);

} // namespace vexel::NettopParser
