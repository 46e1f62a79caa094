// /proc/meminfo and zram's mm_stat: the memory buckets never exceed the total
// when the file is self-consistent, and the used fraction stays in 0…1.

#include "FuzzInput.h"
#include "system/linux/Meminfo.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const auto text = fuzzText(data, size);
    const auto fields = vexel::Meminfo::parse(text);
    const auto zram = vexel::Meminfo::parseZramMemUsed(text).value_or(0) % (1ull << 50);
    const auto memory = vexel::Meminfo::toMemoryStats(fields, zram);
    require(memory.free <= memory.total);
    require(memory.usedFraction() >= 0 && memory.usedFraction() <= 1.0);
    return 0;
}
