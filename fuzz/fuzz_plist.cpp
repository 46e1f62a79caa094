// Info.plist: a string found is never longer than the document.

#include "FuzzInput.h"
#include "monitor/PlistReader.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    for (const char* key : {"CFBundleName", "CFBundleDisplayName"}) {
        if (const auto value = vexel::PlistReader::topLevelString(fuzzText(data, size), key))
            require(value->size() <= size);
    }
    return 0;
}
