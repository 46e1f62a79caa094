#include "history/Downsample.h"

#include <algorithm>
#include <set>

namespace vexel::Downsample {

std::vector<AppPoint> select(const std::vector<AppPoint>& apps, size_t keep)
{
    std::vector<AppPoint> result;
    std::set<std::string> chosen;
    const auto take = [&](const AppPoint& point) {
        if (chosen.insert(point.app).second)
            result.push_back(point);
    };
    std::vector<const AppPoint*> ranked;
    for (const auto& app : apps)
        ranked.push_back(&app);
    std::stable_sort(
        ranked.begin(), ranked.end(), [](const AppPoint* a, const AppPoint* b) { return a->cpu > b->cpu; });
    for (size_t i = 0; i < ranked.size() && i < keep; ++i)
        take(*ranked[i]);
    for (const auto field : {&AppPoint::mem, &AppPoint::energy, &AppPoint::disk, &AppPoint::net}) {
        std::vector<const AppPoint*> leaders;
        for (const auto& app : apps) {
            if (app.*field > 0)
                leaders.push_back(&app);
        }
        std::stable_sort(leaders.begin(), leaders.end(),
            [field](const AppPoint* a, const AppPoint* b) { return a->*field > b->*field; });
        for (size_t i = 0; i < leaders.size() && i < 3; ++i)
            take(*leaders[i]);
    }
    return result;
}

} // namespace vexel::Downsample
