#include "system/CPUMath.h"

namespace vexel::CPUMath {

namespace {

unsigned long long delta(unsigned long long previous, unsigned long long current)
{
    return current >= previous ? current - previous : 0;
}

} // namespace

Usage usage(std::span<const CoreTicks> prev, std::span<const CoreTicks> cur)
{
    Usage result;
    if (prev.size() != cur.size() || cur.empty()) {
        result.cores.assign(cur.size(), 0.0);
        return result;
    }
    double userSum = 0;
    double systemSum = 0;
    double totalSum = 0;
    result.cores.reserve(cur.size());
    for (size_t i = 0; i < cur.size(); ++i) {
        const auto u = static_cast<double>(delta(prev[i].user, cur[i].user) + delta(prev[i].nice, cur[i].nice));
        const auto s = static_cast<double>(delta(prev[i].system, cur[i].system));
        const double busy = u + s;
        const double total = busy + static_cast<double>(delta(prev[i].idle, cur[i].idle));
        result.cores.push_back(total > 0 ? busy / total : 0.0);
        userSum += u;
        systemSum += s;
        totalSum += total;
    }
    if (totalSum > 0) {
        result.user = userSum / totalSum;
        result.system = systemSum / totalSum;
    }
    return result;
}

} // namespace vexel::CPUMath
