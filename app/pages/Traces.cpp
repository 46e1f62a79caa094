#include "pages/Traces.h"

#include "format/RoundSteps.h"
#include "texts/Vexel.h"

#include <algorithm>
#include <cmath>

namespace vexel {

namespace {

constexpr double quietRate = 1000; // bytes per second

double reading(double value)
{
    return value;
}

double reading(std::optional<double> value)
{
    return value.value_or(NAN);
}

// A trace of one field of the recent readings, with the minutes marked;
// a missing reading is a gap.
template <typename Field> Sparkline traceOf(const RecentRing& ring, Field RingSample::*field, Strain strain)
{
    Sparkline trace;
    trace.strain = strain;
    trace.scaled = true;
    trace.marks = minuteMarks(ring);
    for (const auto& sample : ring.samples())
        trace.values.push_back(reading(sample.*field));
    return trace;
}

template <typename Field> Sparkline shareTraceOf(const RecentRing& ring, Field RingSample::*field, Strain strain)
{
    Sparkline trace = traceOf(ring, field, strain);
    trace.top = 100;
    trace.valueText = shareText;
    return trace;
}

} // namespace

QString shareText(double percent)
{
    return QString::fromStdString(Fmt::percent(percent / 100));
}

QString rateText(double bytesPerSecond, Fmt::RateUnit unit)
{
    return QString::fromStdString(Fmt::rate(bytesPerSecond, unit));
}

double rateTop(double peak, Fmt::RateUnit unit)
{
    const double perByte = unit == Fmt::RateUnit::bits ? 8 : 1;
    return RoundSteps::roundUp(std::max(peak, quietRate) * perByte) / perByte;
}

std::vector<std::pair<double, QString>> minuteMarks(const RecentRing& ring)
{
    const auto& samples = ring.samples();
    if (samples.size() < 2)
        return {};
    const double newest = samples.back().t;
    const auto last = static_cast<double>(samples.size() - 1);
    std::vector<std::pair<double, QString>> marks{{1.0, Vexel::tr("now")}};
    size_t at = samples.size() - 1;
    for (int minutes = 1; newest - 60.0 * minutes >= samples.front().t; ++minutes) {
        const double moment = newest - 60.0 * minutes;
        while (at > 0 && samples[at - 1].t >= moment)
            --at;
        marks.emplace_back(static_cast<double>(at) / last, QString());
    }
    if (marks.size() > 1)
        marks.back().second = Vexel::tr("%1 min ago").arg(marks.size() - 1);
    return marks;
}

Sparkline shareTrace(const RecentRing& ring, double RingSample::*field, Strain strain)
{
    return shareTraceOf(ring, field, strain);
}

Sparkline shareTrace(const RecentRing& ring, std::optional<double> RingSample::*field, Strain strain)
{
    return shareTraceOf(ring, field, strain);
}

Sparkline rateTrace(const RecentRing& ring, double RingSample::*field, Strain strain, Fmt::RateUnit unit)
{
    Sparkline trace = traceOf(ring, field, strain);
    trace.top = rateTop(ring.peak(field).value_or(0), unit);
    trace.valueText = [unit](double value) { return rateText(value, unit); };
    return trace;
}

} // namespace vexel
