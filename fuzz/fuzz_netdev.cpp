// /proc/net/dev: interface names are non-empty and carry no surrounding blanks.

#include "FuzzInput.h"
#include "system/linux/NetDev.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    for (const auto& interface : vexel::NetDev::parse(fuzzText(data, size))) {
        require(!interface.name.empty());
        require(interface.name.front() != ' ' && interface.name.back() != ' ');
    }
    return 0;
}
