// ps output: every record has a name, a non-negative processor time and a
// memory that is a whole number of kibibytes.

#include "FuzzInput.h"
#include "processes/PsParser.h"

#include <cmath>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    for (const auto& record : vexel::PsParser::parse(fuzzText(data, size), vexel::TimeZone::fixed(0))) {
        require(record.cpuTime && *record.cpuTime >= 0 && std::isfinite(*record.cpuTime));
        require(record.memory && *record.memory % 1024 == 0);
        require(!record.path
            || (record.path->starts_with('/') && record.name == record.path->substr(record.path->rfind('/') + 1)));
    }
    return 0;
}
