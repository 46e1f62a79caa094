#include "pages/TimeTicks.h"

#include "format/CFormat.h"
#include "texts/Vexel.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <functional>

namespace vexel {

namespace {

constexpr double quarter = 900;
constexpr double day = 86400;
constexpr size_t mostTicks = 6;

constexpr std::array<const char*, 7> weekdays{QT_TRANSLATE_NOOP("vexel::Vexel", "Sun"),
    QT_TRANSLATE_NOOP("vexel::Vexel", "Mon"), QT_TRANSLATE_NOOP("vexel::Vexel", "Tue"),
    QT_TRANSLATE_NOOP("vexel::Vexel", "Wed"), QT_TRANSLATE_NOOP("vexel::Vexel", "Thu"),
    QT_TRANSLATE_NOOP("vexel::Vexel", "Fri"), QT_TRANSLATE_NOOP("vexel::Vexel", "Sat")};
constexpr std::array<const char*, 12> months{QT_TRANSLATE_NOOP("vexel::Vexel", "Jan"),
    QT_TRANSLATE_NOOP("vexel::Vexel", "Feb"), QT_TRANSLATE_NOOP("vexel::Vexel", "Mar"),
    QT_TRANSLATE_NOOP("vexel::Vexel", "Apr"), QT_TRANSLATE_NOOP("vexel::Vexel", "May"),
    QT_TRANSLATE_NOOP("vexel::Vexel", "Jun"), QT_TRANSLATE_NOOP("vexel::Vexel", "Jul"),
    QT_TRANSLATE_NOOP("vexel::Vexel", "Aug"), QT_TRANSLATE_NOOP("vexel::Vexel", "Sep"),
    QT_TRANSLATE_NOOP("vexel::Vexel", "Oct"), QT_TRANSLATE_NOOP("vexel::Vexel", "Nov"),
    QT_TRANSLATE_NOOP("vexel::Vexel", "Dec")};

// Whole hours from `from` on, every `hours` in local time.
std::vector<std::pair<double, QString>> hourTicks(double from, double to, int hours, const TimeZone& zone)
{
    std::vector<std::pair<double, QString>> ticks;
    // Quarter hours find the local whole hour in every zone, even those set off by 30 or 45 minutes.
    for (double t = std::ceil(from / quarter) * quarter; t <= to; t += quarter) {
        const CivilTime civil = zone.civil(t);
        if (civil.minute == 0 && civil.hour % hours == 0)
            ticks.emplace_back(t, QString::fromStdString(cformat("%02d:00", civil.hour)));
    }
    return ticks;
}

// The first local midnight at or after `t`.
double nextMidnight(double t, const TimeZone& zone)
{
    for (double at = std::ceil(t / quarter) * quarter;; at += quarter) {
        const CivilTime civil = zone.civil(at);
        if (civil.hour == 0 && civil.minute == 0)
            return at;
    }
}

// Local midnights from `from` on that `keep` accepts, labelled by `label`.
std::vector<std::pair<double, QString>> dayTicks(double from, double to, const TimeZone& zone,
    const std::function<bool(const CivilTime&, int)>& keep, const std::function<QString(const CivilTime&, int)>& label)
{
    std::vector<std::pair<double, QString>> ticks;
    for (double t = nextMidnight(from, zone); t <= to; t += day) {
        int weekday = 0;
        CivilTime civil = zone.civil(t, &weekday);
        // A day of 23 or 25 hours moves the next midnight by an hour.
        if (civil.hour == 23)
            civil = zone.civil(t += 3600, &weekday);
        else if (civil.hour == 1)
            civil = zone.civil(t -= 3600, &weekday);
        if (keep(civil, weekday))
            ticks.emplace_back(t, label(civil, weekday));
    }
    return ticks;
}

QString dayAndMonth(const CivilTime& civil, int)
{
    return Vexel::tr("%1 %2", "a day of a month: 24 Nov")
        .arg(civil.day)
        .arg(Vexel::words(months.at(static_cast<size_t>(civil.month - 1) % 12)));
}

} // namespace

std::vector<std::pair<double, QString>> timeTicks(double from, double to, HistoryRange range, const TimeZone& zone)
{
    if (!(to > from) || !std::isfinite(from) || !std::isfinite(to) || to - from > 400 * day)
        return {};
    switch (range) {
    case HistoryRange::today:
        for (const int hours : {1, 2, 3, 4, 6, 12}) {
            auto ticks = hourTicks(from, to, hours, zone);
            if (ticks.size() <= mostTicks)
                return ticks;
        }
        return {};
    case HistoryRange::week:
        return dayTicks(
            from, to, zone, [](const CivilTime&, int) { return true; },
            [](const CivilTime&, int weekday) { return Vexel::words(weekdays.at(static_cast<size_t>(weekday) % 7)); });
    case HistoryRange::month:
        return dayTicks(
            from, to, zone, [](const CivilTime& civil, int) { return civil.day % 5 == 0 && civil.day < 31; },
            dayAndMonth);
    case HistoryRange::year:
        return dayTicks(
            from, to, zone, [](const CivilTime& civil, int) { return civil.day == 1 && civil.month % 2 == 1; },
            dayAndMonth);
    }
    return {};
}

std::vector<double> minorTicks(double from, double to, HistoryRange range, const TimeZone& zone)
{
    if (!(to > from) || !std::isfinite(from) || !std::isfinite(to) || to - from > 400 * day)
        return {};
    std::vector<std::pair<double, QString>> ticks;
    const auto everyDay = [](const CivilTime&, int) { return true; };
    const auto unnamed = [](const CivilTime&, int) { return QString(); };
    switch (range) {
    case HistoryRange::today: ticks = hourTicks(from, to, 1, zone); break;
    case HistoryRange::week: ticks = hourTicks(from, to, 12, zone); break;
    case HistoryRange::month: ticks = dayTicks(from, to, zone, everyDay, unnamed); break;
    case HistoryRange::year:
        ticks = dayTicks(
            from, to, zone, [](const CivilTime& civil, int) { return civil.day == 1; }, unnamed);
        break;
    }
    // The named marks stand where they are; the rest fall between them.
    const auto named = timeTicks(from, to, range, zone);
    std::vector<double> between;
    for (const auto& [t, label] : ticks)
        if (std::none_of(named.begin(), named.end(), [t = t](const auto& mark) { return mark.first == t; }))
            between.push_back(t);
    return between;
}

QString weekdayText(double t, const TimeZone& zone)
{
    int weekday = 0;
    (void)zone.civil(t, &weekday);
    return Vexel::words(weekdays.at(static_cast<size_t>(weekday) % weekdays.size()));
}

QString momentText(double t, const TimeZone& zone)
{
    int weekday = 0;
    const CivilTime civil = zone.civil(t, &weekday);
    return Vexel::tr("%1 %2", "a weekday and a time")
        .arg(weekdayText(t, zone), QString::fromStdString(cformat("%02d:%02d", civil.hour, civil.minute)));
}

} // namespace vexel
