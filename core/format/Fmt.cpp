#include "format/Fmt.h"

#include "format/CFormat.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace vexel::Fmt {

namespace {

// The whole part of a non-negative value, printed without a fraction.
std::string whole(double value)
{
    return cformat("%.0f", std::floor(value));
}

} // namespace

std::string percent(double fraction)
{
    return cformat("%.0f%%", std::max(fraction, 0.0) * 100);
}

std::string cpu(double value, std::optional<int> cores)
{
    const double p = cores ? value / std::max(*cores, 1) * 100 : value * 100;
    if (p > 0 && p < 0.1)
        return "<0.1%";
    return p < 10 ? cformat("%.1f%%", p) : cformat("%.0f%%", p);
}

std::string memory(uint64_t bytes)
{
    const double g = static_cast<double>(bytes) / 1073741824.0;
    if (g >= 10)
        return cformat("%.1f GB", g);
    if (g >= 0.95)
        return cformat("%.2f GB", g);
    const double m = static_cast<double>(bytes) / 1048576.0;
    return m >= 10 ? cformat("%.0f MB", m) : cformat("%.1f MB", m);
}

std::string bytes(double value, std::optional<int> digits)
{
    double v = std::max(value, 0.0);
    if (!(v >= 1000))
        return whole(std::isfinite(v) ? v : 0) + " B";
    static constexpr std::array<const char*, 5> units{"KB", "MB", "GB", "TB", "PB"};
    size_t unit = 0;
    v /= 1000;
    while (v >= 1000 && unit + 1 < units.size()) {
        v /= 1000;
        ++unit;
    }
    const int decimals = digits ? std::clamp(*digits, 0, 20) : (v < 10 ? 1 : 0);
    return cformat("%.*f %s", decimals, v, units[unit]);
}

std::string bytes(uint64_t count)
{
    return bytes(static_cast<double>(count));
}

std::string rate(double bytesPerSecond, RateUnit unit)
{
    const double v = std::max(bytesPerSecond, 0.0);
    if (unit == RateUnit::bytes)
        return v < 1000 ? whole(v) + " B/s" : bytes(v) + "/s";
    double b = v * 8;
    if (b < 1000)
        return whole(b) + " b/s";
    static constexpr std::array<const char*, 3> units{"Kb/s", "Mb/s", "Gb/s"};
    size_t prefix = 0;
    b /= 1000;
    while (b >= 1000 && prefix + 1 < units.size()) {
        b /= 1000;
        ++prefix;
    }
    return b < 10 ? cformat("%.1f %s", b, units[prefix]) : cformat("%.0f %s", b, units[prefix]);
}

std::string watts(double value)
{
    const double a = std::fabs(value);
    if (a >= 1)
        return a < 10 ? cformat("%.1f W", value) : cformat("%.0f W", value);
    return cformat("%.0f mW", a * 1000);
}

std::string minutes(int count)
{
    if (count > 59)
        return cformat("%dh %02dm", count / 60, count % 60);
    return cformat("%d min", count);
}

std::string duration(double seconds)
{
    const double clamped = std::isfinite(seconds) ? std::max(seconds, 0.0) : 0.0;
    const auto s = static_cast<long long>(std::min(clamped, 9.0e15));
    if (s < 60)
        return cformat("%llds", s);
    if (s < 3600)
        return cformat("%lldm", s / 60);
    if (s < 86400)
        return cformat("%lldh %lldm", s / 3600, (s % 3600) / 60);
    if (s < 172800)
        return "1 day";
    return cformat("%lld days", s / 86400);
}

} // namespace vexel::Fmt
