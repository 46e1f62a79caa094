// pci.ids: a name that is found is never empty and never spans lines.

#include "FuzzInput.h"
#include "system/linux/PciIds.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const auto text = fuzzText(data, size);
    for (const auto& [vendor, device] : {std::pair{"1002", "73bf"}, std::pair{"10de", "2504"}}) {
        if (const auto name = vexel::PciIds::deviceName(text, vendor, device))
            require(!name->empty() && name->find('\n') == std::string::npos);
    }
    return 0;
}
