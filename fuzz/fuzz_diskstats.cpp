// /proc/diskstats: every device has a name, and bytes are whole sectors.

#include "FuzzInput.h"
#include "system/linux/Diskstats.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    for (const auto& device : vexel::Diskstats::parse(fuzzText(data, size))) {
        require(!device.name.empty());
        require(device.bytesRead % 512 == 0 && device.bytesWritten % 512 == 0);
    }
    return 0;
}
