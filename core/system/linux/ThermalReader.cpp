#include "system/linux/ThermalReader.h"

#include "io/Files.h"
#include "system/linux/HwmonChips.h"
#include "text/TextScan.h"

#include <algorithm>
#include <set>

namespace vexel {

namespace {

constexpr double rediscoverSeconds = 60;

std::optional<double> numberAt(const std::string& path)
{
    return TextScan::toDouble(Files::readValue(path));
}

bool isCpuSensorChip(std::string_view name)
{
    return name == "coretemp" || name == "k10temp" || name == "zenpower";
}

std::optional<double> celsius(const std::string& path)
{
    const auto milli = numberAt(path);
    if (!milli)
        return std::nullopt;
    return *milli / 1000.0;
}

ThermalRule::Zone readZone(const std::string& path)
{
    ThermalRule::Zone zone;
    zone.celsius = celsius(path + "/temp").value_or(0);
    for (int i = 0; i < 32; ++i) {
        const std::string trip = path + "/trip_point_" + std::to_string(i);
        const auto type = Files::readValue(trip + "_type");
        if (type.empty())
            break;
        if (const auto temperature = celsius(trip + "_temp"); temperature && *temperature > 0)
            zone.trips.push_back({type, *temperature});
    }
    return zone;
}

} // namespace

void ThermalReader::discover(double now)
{
    m_discoveredAt = now;
    const std::string thermal = m_roots.sys + "/class/thermal";
    m_zones = entriesWithPrefix(thermal, "thermal_zone");
    m_coolingDevices = entriesWithPrefix(thermal, "cooling_device");
    m_throttleFolders.clear();
    std::set<std::string> packages;
    for (const auto& cpu : entriesWithPrefix(m_roots.sys + "/devices/system/cpu", "cpu")) {
        const std::string folder = cpu + "/thermal_throttle";
        if (!Files::exists(folder + "/package_throttle_count"))
            continue;
        // package_* repeats on every CPU of a package: count each package once.
        if (packages.insert(Files::readValue(cpu + "/topology/physical_package_id")).second)
            m_throttleFolders.push_back(folder);
    }
}

ThermalRule::Throttling ThermalReader::throttling(double now)
{
    if (m_throttleFolders.empty())
        return {};
    double count = 0;
    double milliseconds = 0;
    for (const auto& folder : m_throttleFolders) {
        count += numberAt(folder + "/package_throttle_count").value_or(0);
        milliseconds += numberAt(folder + "/package_throttle_total_time_ms").value_or(0);
    }
    ThermalRule::Throttling result;
    if (m_lastThrottleCount && m_lastThrottleMs && now > m_lastThrottleTime) {
        result.advanced = count > *m_lastThrottleCount || milliseconds > *m_lastThrottleMs;
        const double interval = (now - m_lastThrottleTime) * 1000.0 * static_cast<double>(m_throttleFolders.size());
        result.fractionOfInterval = std::max(0.0, milliseconds - *m_lastThrottleMs) / interval;
    }
    m_lastThrottleCount = count;
    m_lastThrottleMs = milliseconds;
    m_lastThrottleTime = now;
    return result;
}

ThermalRule::Inputs ThermalReader::inputs(double now, const std::vector<Temperature>& temperatures)
{
    if (!m_discoveredAt || now < *m_discoveredAt || now - *m_discoveredAt > rediscoverSeconds)
        discover(now);
    ThermalRule::Inputs inputs;
    for (const auto& zone : m_zones) {
        if (Files::readValue(zone + "/mode") != "disabled")
            inputs.zones.push_back(readZone(zone));
    }
    for (const auto& device : m_coolingDevices) {
        const auto state = numberAt(device + "/cur_state");
        inputs.coolingDevices.push_back(
            {Files::readValue(device + "/type"), static_cast<long long>(state.value_or(0))});
    }
    for (const auto& t : temperatures) {
        if (!isCpuSensorChip(t.chip))
            continue;
        const bool package = t.label.starts_with("Package") || t.label == "Tctl" || t.label == "Tdie";
        inputs.cpuSensors.push_back({t.celsius, t.high, t.critical, package});
    }
    inputs.throttling = throttling(now);
    return inputs;
}

ThermalLevel ThermalReader::read(double now, const std::vector<Temperature>& temperatures)
{
    return m_stepper.next(ThermalRule::judge(inputs(now, temperatures)));
}

} // namespace vexel
