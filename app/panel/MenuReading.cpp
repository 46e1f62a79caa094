#include "panel/MenuReading.h"

#include "format/CFormat.h"
#include "format/Fmt.h"
#include "model/AppModel.h"
#include "pages/Traces.h"
#include "texts/Vexel.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace vexel {

namespace {

constexpr std::array<const char*, 4> suffixes{"", "K", "M", "G"};

std::vector<double> traceOf(const RecentRing& ring, const std::function<double(const RingSample&)>& value)
{
    std::vector<double> trace;
    for (const auto& sample : ring.samples())
        trace.push_back(value(sample));
    return trace;
}

} // namespace

std::string shortRate(double bytesPerSecond, bool bits)
{
    double value = bits ? bytesPerSecond * 8 : bytesPerSecond;
    if (!(value > 0))
        return "0";
    size_t step = 0;
    while (value >= 1000 && step + 1 < suffixes.size()) {
        value /= 1000;
        ++step;
    }
    const char* suffix = suffixes.at(step);
    return step > 0 && value < 10 ? cformat("%.1f%s", value, suffix) : cformat("%.0f%s", value, suffix);
}

std::optional<Fmt::RateUnit> rateUnit(const AppModel& model, MenuItemKind kind)
{
    switch (kind) {
    case MenuItemKind::network: return model.networkUnit();
    case MenuItemKind::disk: return Fmt::RateUnit::bytes;
    default: return std::nullopt;
    }
}

MenuReading menuReading(const AppModel& model, const MenuItemConfig& config)
{
    MenuReading reading{config.kind, config.style, "—", std::nullopt, {}, 100, model.strain(config.kind)};
    if (!canGraph(config.kind) && reading.style != MenuItemStyle::value)
        reading.style = MenuItemStyle::value; // nothing to draw a graph of
    if (!model.frame())
        return reading;
    const auto& system = model.frame()->system;
    const auto& ring = model.ring();
    const bool bits = model.settings().networkBits;
    switch (config.kind) {
    case MenuItemKind::cpu: {
        const double busy = system.cpu.user + system.cpu.system;
        reading.text = Fmt::percent(model.settings().cpuScale == CPUScale::core ? busy * model.cores() : busy);
        reading.trace = traceOf(ring, [](const RingSample& s) { return s.cpu; });
        break;
    }
    case MenuItemKind::memory:
        reading.text = Fmt::percent(system.memory.usedFraction());
        reading.trace = traceOf(ring, [](const RingSample& s) { return s.mem; });
        break;
    case MenuItemKind::network:
        reading.text = shortRate(system.net.inRate, bits);
        reading.text2 = shortRate(system.net.outRate, bits);
        reading.trace = traceOf(ring, [](const RingSample& s) { return s.netIn + s.netOut; });
        break;
    case MenuItemKind::disk:
        reading.text = shortRate(system.disk.readRate, false);
        reading.text2 = shortRate(system.disk.writeRate, false);
        reading.trace = traceOf(ring, [](const RingSample& s) { return s.diskR + s.diskW; });
        break;
    case MenuItemKind::gpu:
        if (system.gpu)
            reading.text = Fmt::percent(system.gpu->utilisation);
        reading.trace = traceOf(ring, [](const RingSample& s) { return s.gpu.value_or(NAN); });
        break;
    case MenuItemKind::battery:
        if (system.battery)
            reading.text = std::to_string(system.battery->percent) + "%";
        reading.trace = traceOf(ring, [](const RingSample& s) { return s.battery.value_or(NAN); });
        break;
    case MenuItemKind::thermal: reading.text = Vexel::words(title(system.thermal)).toStdString(); break;
    }
    // Rates have no natural top: their graph reaches the round step over its own peak.
    if (const auto unit = rateUnit(model, config.kind)) {
        double peak = 0;
        for (const double value : reading.trace)
            if (std::isfinite(value))
                peak = std::max(peak, value);
        reading.traceTop = rateTop(peak, *unit);
    }
    return reading;
}

} // namespace vexel
