#include "pages/OverviewFigures.h"

#include "format/Fmt.h"
#include "format/RoundSteps.h"
#include "pages/HistoryCharts.h"
#include "pages/TimeTicks.h"
#include "texts/Vexel.h"

#include <algorithm>
#include <cmath>

namespace vexel {

namespace {

std::optional<double> share(std::optional<double> percent)
{
    return percent ? std::optional(*percent / 100) : std::nullopt;
}

QString text(const std::string& value)
{
    return QString::fromStdString(value);
}

} // namespace

QString todayLine(const HistoryStore::Totals& today)
{
    return Vexel::tr("Disk %1 written, %2 read  ·  Network %3 down, %4 up")
        .arg(text(Fmt::bytes(today.diskW)), text(Fmt::bytes(today.diskR)), text(Fmt::bytes(today.netIn)),
            text(Fmt::bytes(today.netOut)));
}

BarBank weekBank(const std::vector<DayTotal>& week, const TimeZone& zone)
{
    BarBank bank;
    bank.labelled = true;
    std::vector<double> moved;
    for (const auto& day : week) {
        const auto& t = day.totals;
        moved.push_back(t.diskR + t.diskW + t.netIn + t.netOut);
        // Midday names the day even where a day has 23 or 25 hours.
        bank.names.push_back(weekdayText(day.day + 43200, zone));
        bank.values.push_back(text(Fmt::bytes(moved.back())));
    }
    const double busiest = moved.empty() ? 0 : *std::max_element(moved.begin(), moved.end());
    for (const double value : moved)
        bank.fractions.push_back(busiest > 0 ? value / busiest : 0);
    return bank;
}

Chart todayChart(const AppModel& model)
{
    if (!model.frame())
        return {};
    const double now = model.frame()->time;
    const auto& points = model.todaySeries();
    Chart chart = shareChart(points,
        chartFrame(points, start(HistoryRange::today, now, model.zone), now, HistoryRange::today, model.zone),
        {{QString(), &SysPoint::cpu}});
    double peak = 1;
    for (const auto& point : chart.series.front().points)
        peak = std::max(peak, point.y());
    chart.top = std::min(RoundSteps::roundUp(peak), 100.0);
    return chart;
}

double rateFraction(double bytesPerSecond)
{
    if (!(bytesPerSecond > 1000))
        return 0;
    return std::min(1.0, std::log10(bytesPerSecond / 1000) / 6);
}

std::array<Dial, 6> overviewDials(const AppModel& model)
{
    std::array<Dial, 6> dials;
    if (!model.frame())
        return dials;
    const auto& system = model.frame()->system;
    const auto unit = model.networkUnit();
    const double busy = system.cpu.user + system.cpu.system;
    dials[0] = {busy, share(model.peak(&RingSample::cpu)), model.strain(MenuItemKind::cpu), text(Fmt::percent(busy)),
        Vexel::tr("CPU")};
    dials[1] = {system.memory.usedFraction(), share(model.peak(&RingSample::mem)), model.strain(MenuItemKind::memory),
        text(Fmt::memory(system.memory.used())), Vexel::tr("Memory")};
    const double disk = system.disk.readRate + system.disk.writeRate;
    dials[2] = {rateFraction(disk), std::nullopt, model.strain(MenuItemKind::disk),
        text(Fmt::rate(disk, Fmt::RateUnit::bytes)), Vexel::tr("Disk")};
    const double net = system.net.inRate + system.net.outRate;
    dials[3] = {rateFraction(net), std::nullopt, model.strain(MenuItemKind::network), text(Fmt::rate(net, unit)),
        Vexel::tr("Network")};
    if (system.gpu)
        dials[4] = {system.gpu->utilisation, std::nullopt, model.strain(MenuItemKind::gpu),
            text(Fmt::percent(system.gpu->utilisation)), Vexel::tr("GPU")};
    else
        dials[4] = {0, std::nullopt, Strain::calm, QStringLiteral("—"), Vexel::tr("GPU")};
    if (system.battery)
        dials[5] = {system.battery->percent / 100.0, std::nullopt, model.strain(MenuItemKind::battery),
            text(std::to_string(system.battery->percent) + "%"), Vexel::tr("Battery")};
    else
        dials[5] = {0, std::nullopt, Strain::calm, Vexel::tr("Mains"), Vexel::tr("Power")};
    return dials;
}

} // namespace vexel
