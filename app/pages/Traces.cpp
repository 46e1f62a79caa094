#include "pages/Traces.h"

#include "format/Fmt.h"

#include <algorithm>
#include <cmath>

namespace vexel {

namespace {

constexpr double quietRate = 1000; // bytes per second

QString percent(double value)
{
    return QString::number(std::lround(value)) + QStringLiteral("%");
}

} // namespace

Sparkline shareTrace(const RecentRing& ring, double RingSample::*field, Strain strain)
{
    Sparkline trace;
    trace.top = 100;
    trace.valueText = percent;
    trace.strain = strain;
    for (const auto& sample : ring.samples())
        trace.values.push_back(sample.*field);
    return trace;
}

Sparkline shareTrace(const RecentRing& ring, std::optional<double> RingSample::*field, Strain strain)
{
    Sparkline trace;
    trace.top = 100;
    trace.valueText = percent;
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
    trace.valueText = [](double value) { return QString::fromStdString(Fmt::rate(value, Fmt::RateUnit::bytes)); };
    for (const auto& sample : ring.samples())
        trace.values.push_back(sample.*field);
    return trace;
}

} // namespace vexel
