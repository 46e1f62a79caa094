#include "system/linux/SensorReader.h"

#include "io/Files.h"
#include "system/linux/HwmonChips.h"
#include "text/TextScan.h"

#include <algorithm>
#include <set>

namespace vexel {

namespace {

constexpr double rediscoverSeconds = 60;
// Readings outside these are a sensor that isn't there (thinkpad reports -128 °C).
constexpr double coldest = -40;
constexpr double hottest = 150;

std::optional<double> celsiusAt(const std::string& path)
{
    const auto milli = TextScan::toDouble(Files::readValue(path));
    if (!milli)
        return std::nullopt;
    return *milli / 1000.0;
}

// tempN and fanN files sort by their number, not as text: temp10 after temp9.
bool byNumber(const std::string& a, const std::string& b)
{
    return a.size() != b.size() ? a.size() < b.size() : a < b;
}

} // namespace

void SensorReader::discover(double now)
{
    m_discoveredAt = now;
    m_inputs.clear();
    std::set<std::string> chips;
    for (const auto& [chip, base] : hwmonChips(m_roots.sys)) {
        chips.insert(chip);
        std::vector<std::string> names;
        for (const auto& name : Files::list(base))
            if ((name.starts_with("temp") || name.starts_with("fan")) && name.ends_with("_input"))
                names.push_back(name);
        std::sort(names.begin(), names.end(), byNumber);
        for (const auto& name : names) {
            const std::string stem = name.substr(0, name.size() - 6);
            const std::string path = base + "/" + stem;
            const auto label = Files::readValue(path + "_label");
            const bool fan = name.starts_with("fan");
            m_inputs.push_back({chip, label.empty() ? stem : label, base + "/" + name, fan,
                fan ? std::nullopt : celsiusAt(path + "_max"), fan ? std::nullopt : celsiusAt(path + "_crit")});
        }
    }
    // A zone that a chip of its own name already reports would be counted twice.
    for (const auto& zone : entriesWithPrefix(m_roots.sys + "/class/thermal", "thermal_zone")) {
        const auto type = Files::readValue(zone + "/type");
        if (type.empty() || chips.contains(type) || Files::readValue(zone + "/mode") == "disabled")
            continue;
        m_inputs.push_back({type, "zone " + zone.substr(zone.rfind("thermal_zone") + 12), zone + "/temp", false,
            std::nullopt, std::nullopt});
    }
}

SensorStats SensorReader::read(double now)
{
    if (!m_discoveredAt || now < *m_discoveredAt || now - *m_discoveredAt > rediscoverSeconds)
        discover(now);
    SensorStats stats;
    for (const auto& input : m_inputs) {
        if (input.fan) {
            if (const auto rpm = TextScan::toDouble(Files::readValue(input.path)); rpm && *rpm >= 0)
                stats.fans.push_back({input.chip, input.label, *rpm});
            continue;
        }
        const auto celsius = celsiusAt(input.path);
        if (!celsius || *celsius <= coldest || *celsius >= hottest)
            continue;
        stats.temperatures.push_back({input.chip, input.label, *celsius, input.high, input.critical});
    }
    return stats;
}

} // namespace vexel
