#pragma once

#include "processes/ProcRecord.h"

#include <string>
#include <vector>

namespace vexel::testing {

// Reads a process-tree fixture (tab-separated: pid ppid uid start state name
// exe cgroup; "-" for none; state k = kernel thread, z = zombie). Start times
// are seconds after a boot at `bootEpoch`. Every record gets 1 s of CPU and
// 1 MiB of memory unless it is a zombie.
[[nodiscard]] std::vector<ProcRecord> loadProcessTable(const std::string& path, double bootEpoch = 1'700'000'000);

} // namespace vexel::testing
