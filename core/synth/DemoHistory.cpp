#include "synth/DemoHistory.h"

#include <algorithm>
#include <cmath>

namespace vexel::DemoHistory {

namespace {

// A repeatable value in [0, 1) for a minute.
double wobble(double t, double salt)
{
    const double x = std::sin(std::floor(t / pointSeconds) * 12.9898 + salt * 78.233) * 43758.5453;
    return x - std::floor(x);
}

// How much of a working day this hour is: 0 at night, 1 mid-afternoon on weekdays.
double workload(const CivilTime& civil, int weekday)
{
    const double hour = civil.hour + civil.minute / 60.0;
    const bool weekend = weekday == 0 || weekday == 6;
    if (hour < 8 || hour > 20)
        return 0.05;
    const double day = std::sin((hour - 8) / 12 * 3.14159265358979);
    return weekend ? 0.3 * day : day;
}

} // namespace

SysPoint sample(double t, const TimeZone& zone, double now)
{
    SysPoint point;
    point.t = t;
    if (t > now)
        return point;
    int weekday = 0;
    const CivilTime civil = zone.civil(t, &weekday); // before `weekday` is read
    const double work = workload(civil, weekday);
    const double noise = wobble(t, 1);
    point.dur = pointSeconds;
    point.cpu = std::clamp(0.04 + 0.32 * work + 0.08 * noise, 0.0, 1.0);
    point.cpuMax = std::clamp(point.cpu * (1.2 + 0.6 * wobble(t, 2)), 0.0, 1.0);
    point.mem = 0.48 + 0.22 * work + 0.03 * noise;
    point.memMax = std::min(point.mem + 0.02, 1.0);
    point.pressure = point.mem > 0.72 ? 1 : 0;
    point.swap = work > 0.8 ? 1.5e9 * (work - 0.8) * 5 : 0;
    point.diskR = pointSeconds * (40e3 + 900e3 * work * wobble(t, 3));
    point.diskW = pointSeconds * (60e3 + 1.4e6 * work * wobble(t, 4));
    point.netIn = pointSeconds * (20e3 + 2.5e6 * work * wobble(t, 5));
    point.netOut = pointSeconds * (5e3 + 300e3 * work * wobble(t, 6));
    point.gpu = std::clamp(0.05 + 0.3 * work * wobble(t, 7), 0.0, 1.0);
    point.gpuMax = std::min(*point.gpu * 1.5, 1.0);
    point.power = -(6 + 24 * work * (0.6 + 0.4 * noise));
    // The battery runs down through the working day and is charged overnight.
    const double hour = civil.hour + civil.minute / 60.0;
    point.battery = hour < 8 ? 100.0 : std::max(100.0 - (hour - 8) * 6.5, 22.0);
    point.thermal = work > 0.9 && noise > 0.8 ? 1 : 0;
    return point;
}

} // namespace vexel::DemoHistory
