// Power-supply uevent files: the battery read from any set of them has a
// charge in 0…100 and only positive time estimates.

#include "FuzzInput.h"
#include "system/linux/PowerSupply.h"

#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const auto text = fuzzText(data, size);
    // Two supplies from one input: the halves before and after the first blank line.
    const auto split = text.find("\n\n");
    std::vector<vexel::PowerSupply::Attributes> supplies{vexel::PowerSupply::parseUevent(text.substr(0, split))};
    if (split != std::string_view::npos)
        supplies.push_back(vexel::PowerSupply::parseUevent(text.substr(split + 2)));
    if (const auto battery = vexel::PowerSupply::battery(supplies)) {
        require(battery->percent >= 0 && battery->percent <= 100);
        require(!battery->minutesLeft || *battery->minutesLeft > 0);
        require(!battery->minutesToFull || *battery->minutesToFull > 0);
        require(!battery->health() || (*battery->health() >= 0 && *battery->health() <= 1.0));
    }
    return 0;
}
