#include "time/TimeZone.h"

#include <cmath>
#include <ctime>

namespace vexel {

std::optional<double> TimeZone::toEpoch(const CivilTime& civil) const
{
    if (civil.month < 1 || civil.month > 12 || civil.day < 1 || civil.day > 31 || civil.hour < 0 || civil.hour > 23
        || civil.minute < 0 || civil.minute > 59 || civil.second < 0 || civil.second > 60 || civil.year < 1900
        || civil.year > 9999)
        return std::nullopt;
    std::tm fields{};
    fields.tm_year = civil.year - 1900;
    fields.tm_mon = civil.month - 1;
    fields.tm_mday = civil.day;
    fields.tm_hour = civil.hour;
    fields.tm_min = civil.minute;
    fields.tm_sec = civil.second;
    fields.tm_isdst = -1;
    const std::time_t seconds = local ? std::mktime(&fields) : ::timegm(&fields);
    if (seconds == static_cast<std::time_t>(-1) && !(fields.tm_year == 69 && fields.tm_mday == 31))
        return std::nullopt;
    // A day beyond the month's end (Feb 30) rolls over in the C library: refuse it.
    if (fields.tm_mday != civil.day)
        return std::nullopt;
    return static_cast<double>(seconds) - (local ? 0.0 : static_cast<double>(offsetSeconds));
}

CivilTime TimeZone::civil(double epoch, int* weekday) const
{
    std::tm fields{};
    const auto seconds = static_cast<std::time_t>(std::floor(epoch + (local ? 0.0 : offsetSeconds)));
    if (local)
        ::localtime_r(&seconds, &fields);
    else
        ::gmtime_r(&seconds, &fields);
    if (weekday != nullptr)
        *weekday = fields.tm_wday;
    return CivilTime{
        fields.tm_year + 1900, fields.tm_mon + 1, fields.tm_mday, fields.tm_hour, fields.tm_min, fields.tm_sec};
}

} // namespace vexel
