// nettop output: totals never fall below any single line's counters (no wrap-around surprises beyond addition).

#include "FuzzInput.h"
#include "rates/NettopParser.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const auto counters = vexel::NettopParser::parse(fuzzText(data, size));
    size_t lines = 1;
    for (size_t i = 0; i < size; ++i)
        lines += data[i] == '\n' ? 1 : 0;
    require(counters.size() <= lines);
    return 0;
}
