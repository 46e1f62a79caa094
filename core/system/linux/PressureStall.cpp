#include "system/linux/PressureStall.h"

#include "text/TextScan.h"

namespace vexel::PressureStall {

namespace {

std::optional<double> avg10(std::string_view line)
{
    for (const auto word : TextScan::words(line)) {
        if (word.starts_with("avg10="))
            return TextScan::toDouble(word.substr(6));
    }
    return std::nullopt;
}

bool isCritical(double available, const std::optional<Averages>& stalls, double scale)
{
    if (available < 0.05)
        return true;
    return stalls && available < 0.5 && (stalls->full >= 10 * scale || stalls->some >= 40 * scale);
}

bool isWarning(double available, const std::optional<Averages>& stalls, double scale)
{
    if (available < 0.10)
        return true;
    return stalls && available < 0.5 && stalls->some >= 10 * scale;
}

} // namespace

std::optional<Averages> parse(std::string_view text)
{
    std::optional<double> some;
    std::optional<double> full;
    TextScan::forEachLine(text, [&](std::string_view line) {
        if (line.starts_with("some "))
            some = avg10(line);
        else if (line.starts_with("full "))
            full = avg10(line);
    });
    if (!some || !full || *some < 0 || *full < 0)
        return std::nullopt;
    return Averages{*some, *full};
}

MemoryPressure judge(double available, std::optional<Averages> stalls, MemoryPressure previous)
{
    if (isCritical(available, stalls, 1.0))
        return MemoryPressure::critical;
    if (previous == MemoryPressure::critical && isCritical(available, stalls, 0.5))
        return MemoryPressure::critical;
    if (isWarning(available, stalls, 1.0))
        return MemoryPressure::warning;
    if (previous != MemoryPressure::normal && isWarning(available, stalls, 0.5))
        return MemoryPressure::warning;
    return MemoryPressure::normal;
}

} // namespace vexel::PressureStall
