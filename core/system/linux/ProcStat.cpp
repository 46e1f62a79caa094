#include "system/linux/ProcStat.h"

#include "text/TextScan.h"

namespace vexel::ProcStat {

namespace {

bool isCoreLabel(std::string_view word)
{
    if (word.size() < 4 || !word.starts_with("cpu"))
        return false;
    for (const char c : word.substr(3)) {
        if (c < '0' || c > '9')
            return false;
    }
    return true;
}

} // namespace

std::vector<CoreTicks> parseCoreTicks(std::string_view text)
{
    std::vector<CoreTicks> cores;
    TextScan::forEachLine(text, [&](std::string_view line) {
        const auto fields = TextScan::words(line);
        if (fields.size() < 5 || !isCoreLabel(fields[0]))
            return;
        // user nice system idle iowait irq softirq
        std::array<uint64_t, 7> column{};
        for (size_t i = 0; i < column.size() && i + 1 < fields.size(); ++i) {
            const auto value = TextScan::toU64(fields[i + 1]);
            if (!value)
                return;
            column[i] = *value;
        }
        cores.push_back(CoreTicks{
            .user = column[0],
            .system = column[2] + column[5] + column[6],
            .idle = column[3] + column[4],
            .nice = column[1],
        });
    });
    return cores;
}

std::optional<std::array<double, 3>> parseLoadAverage(std::string_view text)
{
    const auto fields = TextScan::words(TextScan::trim(text));
    if (fields.size() < 3)
        return std::nullopt;
    std::array<double, 3> load{};
    for (size_t i = 0; i < 3; ++i) {
        const auto value = TextScan::toDouble(fields[i]);
        if (!value || *value < 0)
            return std::nullopt;
        load[i] = *value;
    }
    return load;
}

} // namespace vexel::ProcStat
