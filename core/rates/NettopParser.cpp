#include "rates/NettopParser.h"

#include "text/TextScan.h"

#include <limits>
#include <vector>

namespace vexel::NettopParser {

namespace {

std::vector<std::string_view> splitCommas(std::string_view line)
{
    std::vector<std::string_view> fields;
    size_t start = 0;
    while (true) {
        const auto comma = line.find(',', start);
        fields.push_back(line.substr(start, comma == std::string_view::npos ? std::string_view::npos : comma - start));
        if (comma == std::string_view::npos)
            break;
        start = comma + 1;
    }
    return fields;
}

} // namespace

NetCounters parse(std::string_view text)
{
    NetCounters counters;
    TextScan::forEachLine(text, [&](std::string_view line) {
        const auto fields = splitCommas(line);
        if (fields.size() < 3)
            return;
        const auto dot = fields[0].rfind('.');
        if (dot == std::string_view::npos)
            return;
        const auto pid = TextScan::toI64(fields[0].substr(dot + 1));
        const auto in = TextScan::toU64(fields[1]);
        const auto out = TextScan::toU64(fields[2]);
        if (!pid || *pid < std::numeric_limits<int32_t>::min() || *pid > std::numeric_limits<int32_t>::max() || !in
            || !out)
            return;
        auto& counter = counters[static_cast<int32_t>(*pid)];
        counter.bytesIn += *in;
        counter.bytesOut += *out;
    });
    return counters;
}

} // namespace vexel::NettopParser
