// /proc/stat and /proc/loadavg: cores come only from cpuN lines, and the
// load they give is always a fraction.

#include "FuzzInput.h"
#include "system/CPUMath.h"
#include "system/linux/ProcStat.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const auto text = fuzzText(data, size);
    const auto cores = vexel::ProcStat::parseCoreTicks(text);
    size_t lines = 1;
    for (const char c : text)
        lines += c == '\n' ? 1 : 0;
    require(cores.size() <= lines);
    std::vector<vexel::CoreTicks> zero(cores.size());
    const auto usage = vexel::CPUMath::usage(zero, cores);
    require(usage.cores.size() == cores.size());
    require(usage.user >= 0 && usage.system >= 0 && usage.user + usage.system <= 1.0 + 1e-9);
    for (const double core : usage.cores)
        require(core >= 0 && core <= 1.0);
    if (const auto load = vexel::ProcStat::parseLoadAverage(text))
        for (const double value : *load)
            require(value >= 0);
    return 0;
}
