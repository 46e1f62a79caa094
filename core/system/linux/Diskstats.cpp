#include "system/linux/Diskstats.h"

#include "text/TextScan.h"

namespace vexel::Diskstats {

std::vector<Device> parse(std::string_view text)
{
    std::vector<Device> devices;
    TextScan::forEachLine(text, [&](std::string_view line) {
        // major minor name reads merged sectorsRead ms writes merged sectorsWritten …
        const auto fields = TextScan::words(line);
        if (fields.size() < 10)
            return;
        const auto read = TextScan::toU64(fields[5]);
        const auto written = TextScan::toU64(fields[9]);
        if (!read || !written || *read > UINT64_MAX / 512 || *written > UINT64_MAX / 512)
            return;
        devices.push_back(Device{std::string(fields[2]), *read * 512, *written * 512});
    });
    return devices;
}

} // namespace vexel::Diskstats
