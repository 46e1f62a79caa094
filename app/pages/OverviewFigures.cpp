#include "pages/OverviewFigures.h"

#include "format/Fmt.h"
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

std::vector<double> weekShares(const std::vector<DayTotal>& week)
{
    std::vector<double> moved;
    for (const auto& day : week) {
        const auto& t = day.totals;
        moved.push_back(t.diskR + t.diskW + t.netIn + t.netOut);
    }
    const double busiest = moved.empty() ? 0 : *std::max_element(moved.begin(), moved.end());
    for (auto& value : moved)
        value = busiest > 0 ? value / busiest : 0;
    return moved;
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
    if (!model.frame)
        return dials;
    const auto& system = model.frame->system;
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
