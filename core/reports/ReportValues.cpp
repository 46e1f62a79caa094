#include "reports/ReportValues.h"

#include "format/CFormat.h"
#include "text/TextScan.h"
#include "time/TimeZone.h"

#include <cmath>
#include <limits>

namespace vexel::ReportValues {

double rounded(double value, int decimals)
{
    const double scale = std::pow(10.0, decimals);
    return std::round(value * scale) / scale;
}

double percent(double fraction)
{
    return rounded(fraction * 100, 1);
}

double machinePercent(double fraction)
{
    return percent(fraction > 1.0 ? 1.0 : fraction);
}

int64_t wholeRate(double bytesPerSecond)
{
    constexpr double limit = 9.2e18;
    if (!std::isfinite(bytesPerSecond) || bytesPerSecond <= 0 || bytesPerSecond >= limit)
        return 0;
    return static_cast<int64_t>(bytesPerSecond);
}

uint64_t wholeBytes(double bytes)
{
    constexpr double limit = 1.8e19;
    if (!std::isfinite(bytes) || bytes <= 0 || bytes >= limit)
        return 0;
    return static_cast<uint64_t>(bytes);
}

std::string iso8601(double epoch)
{
    const CivilTime c = TimeZone::fixed(0).civil(std::floor(epoch));
    return cformat("%04d-%02d-%02dT%02d:%02d:%02dZ", c.year, c.month, c.day, c.hour, c.minute, c.second);
}

std::optional<double> parseISO8601(const std::string& text)
{
    // 2026-11-22T04:16:35 then Z, ±hh:mm or ±hhmm.
    if (text.size() < 20 || text[4] != '-' || text[7] != '-' || text[10] != 'T' || text[13] != ':' || text[16] != ':')
        return std::nullopt;
    const auto number = [&](size_t at, size_t length) { return TextScan::toI64(text.substr(at, length)); };
    const auto year = number(0, 4), month = number(5, 2), day = number(8, 2);
    const auto hour = number(11, 2), minute = number(14, 2), second = number(17, 2);
    if (!year || !month || !day || !hour || !minute || !second)
        return std::nullopt;
    int offset = 0;
    const std::string zone = text.substr(19);
    if (zone != "Z") {
        const std::string digits
            = zone.size() == 6 && zone[3] == ':' ? zone.substr(1, 2) + zone.substr(4) : zone.substr(1);
        const auto value
            = digits.size() == 4 && (zone[0] == '+' || zone[0] == '-') ? TextScan::toI64(digits) : std::nullopt;
        if (!value)
            return std::nullopt;
        offset = static_cast<int>((*value / 100) * 3600 + (*value % 100) * 60) * (zone[0] == '-' ? -1 : 1);
    }
    const CivilTime civil{static_cast<int>(*year), static_cast<int>(*month), static_cast<int>(*day),
        static_cast<int>(*hour), static_cast<int>(*minute), static_cast<int>(*second)};
    return TimeZone::fixed(offset).toEpoch(civil);
}

} // namespace vexel::ReportValues
