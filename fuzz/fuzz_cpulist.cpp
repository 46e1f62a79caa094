// Kernel cpulists ("0-7,16"): a count is at least one CPU.

#include "FuzzInput.h"
#include "system/linux/CpuTopology.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    if (const auto count = vexel::CpuTopology::countCpuList(fuzzText(data, size)))
        require(*count >= 1);
    return 0;
}
