// /proc/pressure/memory: averages are never negative, and judging them with
// any availability gives one of the three levels.

#include "FuzzInput.h"
#include "system/linux/PressureStall.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const auto stalls = vexel::PressureStall::parse(fuzzText(data, size));
    if (stalls)
        require(stalls->some >= 0 && stalls->full >= 0);
    const double available = size > 0 ? data[0] / 255.0 : 1.0;
    const auto level = vexel::PressureStall::judge(available, stalls, vexel::MemoryPressure::warning);
    require(vexel::memoryPressureFromRaw(vexel::rawValue(level)).has_value());
    return 0;
}
