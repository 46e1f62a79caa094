#include "pages/HistoryCharts.h"

#include "pages/TimeTicks.h"
#include "pages/Traces.h"

#include <algorithm>

namespace vexel {

Chart chartFrame(const std::vector<SysPoint>& points, double from, double to, HistoryRange range, const TimeZone& zone)
{
    Chart frame;
    frame.from = from;
    frame.to = to;
    double step = 0;
    for (const auto& point : points)
        step = std::max(step, std::min(point.dur, 3600.0));
    frame.gapAfter = std::max(step, 5.0) * 3;
    frame.times = timeTicks(from, to, range, zone);
    frame.minorTimes = minorTicks(from, to, range, zone);
    return frame;
}

Chart shareChart(const std::vector<SysPoint>& points, Chart frame, const ChartFields& fields)
{
    frame.top = 100;
    frame.valueText = shareText;
    for (const auto& [name, field] : fields) {
        Chart::Series series{name, {}};
        for (const auto& point : points)
            series.points.emplace_back(point.t + point.dur / 2, point.*field * 100);
        frame.series.push_back(std::move(series));
    }
    return frame;
}

Chart rateChart(const std::vector<SysPoint>& points, Chart frame, const ChartFields& fields, Fmt::RateUnit unit)
{
    double peak = 0;
    for (const auto& [name, field] : fields) {
        Chart::Series series{name, {}};
        for (const auto& point : points) {
            const double rate = point.dur > 0 ? point.*field / point.dur : 0;
            peak = std::max(peak, rate);
            series.points.emplace_back(point.t + point.dur / 2, rate);
        }
        frame.series.push_back(std::move(series));
    }
    frame.top = rateTop(peak, unit);
    frame.valueText = [unit](double value) { return rateText(value, unit); };
    return frame;
}

} // namespace vexel
