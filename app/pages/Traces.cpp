#include "pages/Traces.h"

#include "format/Fmt.h"

#include <algorithm>
#include <cmath>

namespace vexel {

namespace {

constexpr double quietRate = 1000; // bytes per second

} // namespace

QString shareText(double percent)
{
    return QString::fromStdString(Fmt::percent(percent / 100));
}

QString rateText(double bytesPerSecond)
{
    return QString::fromStdString(Fmt::rate(bytesPerSecond, Fmt::RateUnit::bytes));
}

Sparkline shareTrace(const RecentRing& ring, double RingSample::*field, Strain strain)
{
    Sparkline trace;
    trace.top = 100;
    trace.valueText = shareText;
    trace.strain = strain;
    for (const auto& sample : ring.samples())
        trace.values.push_back(sample.*field);
    return trace;
}

Sparkline shareTrace(const RecentRing& ring, std::optional<double> RingSample::*field, Strain strain)
{
    Sparkline trace;
    trace.top = 100;
    trace.valueText = shareText;
    trace.strain = strain;
    for (const auto& sample : ring.samples())
        trace.values.push_back((sample.*field).value_or(NAN));
    return trace;
}

Sparkline rateTrace(const RecentRing& ring, double RingSample::*field, Strain strain)
{
    Sparkline trace;
    trace.strain = strain;
    trace.top = std::max(ring.peak(field).value_or(0), quietRate);
    trace.valueText = rateText;
    for (const auto& sample : ring.samples())
        trace.values.push_back(sample.*field);
    return trace;
}

} // namespace vexel
