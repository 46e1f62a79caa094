#include "pages/OverviewDials.h"

#include "format/Fmt.h"

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
    const auto unit = model.settings.networkBits ? Fmt::RateUnit::bits : Fmt::RateUnit::bytes;
    const double busy = system.cpu.user + system.cpu.system;
    dials[0] = {busy, share(model.peak(&RingSample::cpu)), model.strain(MenuItemKind::cpu), text(Fmt::percent(busy)),
        QStringLiteral("CPU")};
    dials[1] = {system.memory.usedFraction(), share(model.peak(&RingSample::mem)), model.strain(MenuItemKind::memory),
        text(Fmt::memory(system.memory.used())), QStringLiteral("Memory")};
    const double disk = system.disk.readRate + system.disk.writeRate;
    dials[2] = {rateFraction(disk), std::nullopt, model.strain(MenuItemKind::disk),
        text(Fmt::rate(disk, Fmt::RateUnit::bytes)), QStringLiteral("Disk")};
    const double net = system.net.inRate + system.net.outRate;
    dials[3] = {rateFraction(net), std::nullopt, model.strain(MenuItemKind::network), text(Fmt::rate(net, unit)),
        QStringLiteral("Network")};
    if (system.gpu)
        dials[4] = {system.gpu->utilisation, std::nullopt, model.strain(MenuItemKind::gpu),
            text(Fmt::percent(system.gpu->utilisation)), QStringLiteral("GPU")};
    else
        dials[4] = {0, std::nullopt, Strain::calm, QStringLiteral("—"), QStringLiteral("GPU")};
    if (system.battery)
        dials[5] = {system.battery->percent / 100.0, std::nullopt, model.strain(MenuItemKind::battery),
            text(std::to_string(system.battery->percent) + "%"), QStringLiteral("Battery")};
    else
        dials[5] = {0, std::nullopt, Strain::calm, QStringLiteral("Mains"), QStringLiteral("Power")};
    return dials;
}

} // namespace vexel
