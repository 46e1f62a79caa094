#pragma once

#include "system/linux/LinuxRoots.h"

#include <vector>

namespace vexel::NvidiaLibrary {

// Every NVIDIA GPU's name and load through libnvidia-ml, opened at run time
// so that Vexel neither links nor needs the proprietary driver. Empty when the
// library is missing or refuses.
[[nodiscard]] std::vector<NvidiaGpu> query();

} // namespace vexel::NvidiaLibrary
