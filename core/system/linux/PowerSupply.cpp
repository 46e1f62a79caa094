#include "system/linux/PowerSupply.h"

#include "text/TextScan.h"

#include <algorithm>
#include <cctype>
#include <cmath>
#include <vector>

namespace vexel::PowerSupply {

namespace {

std::optional<double> number(const Attributes& supply, std::string_view key)
{
    const auto it = supply.find(key);
    if (it == supply.end())
        return std::nullopt;
    const auto value = TextScan::toDouble(it->second);
    if (!value || !std::isfinite(*value))
        return std::nullopt;
    return value;
}

std::string_view word(const Attributes& supply, std::string_view key)
{
    const auto it = supply.find(key);
    return it == supply.end() ? std::string_view{} : TextScan::trim(it->second);
}

bool isSystemScope(const Attributes& supply)
{
    return word(supply, "scope") != "Device";
}

bool isBattery(const Attributes& supply)
{
    return word(supply, "type") == "Battery" && isSystemScope(supply) && word(supply, "present") != "0";
}

bool isExternalPower(const Attributes& supply)
{
    const auto type = word(supply, "type");
    return (type == "Mains" || type.starts_with("USB")) && isSystemScope(supply);
}

// Sum of one attribute over the batteries; nothing unless every battery has it.
std::optional<double> sum(const std::vector<const Attributes*>& batteries, std::string_view key)
{
    double total = 0;
    for (const auto* battery : batteries) {
        const auto value = number(*battery, key);
        if (!value)
            return std::nullopt;
        total += std::fabs(*value);
    }
    return total;
}

std::optional<int> positiveMinutes(std::optional<double> minutes)
{
    if (!minutes || !std::isfinite(*minutes) || *minutes <= 0 || *minutes > 1e7)
        return std::nullopt;
    const int whole = static_cast<int>(std::lround(*minutes));
    return whole > 0 ? std::optional<int>(whole) : std::nullopt;
}

std::optional<int> milliampHours(std::optional<double> micro)
{
    if (!micro || *micro <= 0 || *micro > 1e12)
        return std::nullopt;
    return static_cast<int>(std::lround(*micro / 1000.0));
}

int chargePercent(const std::vector<const Attributes*>& batteries)
{
    const auto energyNow = sum(batteries, "energy_now");
    const auto energyFull = sum(batteries, "energy_full");
    const auto chargeNow = sum(batteries, "charge_now");
    const auto chargeFull = sum(batteries, "charge_full");
    double fraction = -1;
    if (batteries.size() > 1 && energyNow && energyFull && *energyFull > 0)
        fraction = *energyNow / *energyFull;
    else if (batteries.size() > 1 && chargeNow && chargeFull && *chargeFull > 0)
        fraction = *chargeNow / *chargeFull;
    if (fraction >= 0)
        return static_cast<int>(std::lround(std::min(fraction, 1.0) * 100));
    double percentSum = 0;
    for (const auto* battery : batteries)
        percentSum += number(*battery, "capacity").value_or(0);
    const double mean = percentSum / static_cast<double>(batteries.size());
    return static_cast<int>(std::lround(std::clamp(mean, 0.0, 100.0)));
}

std::optional<double> powerMagnitude(const std::vector<const Attributes*>& batteries)
{
    if (const auto power = sum(batteries, "power_now"))
        return *power / 1e6;
    double total = 0;
    for (const auto* battery : batteries) {
        const auto volts = number(*battery, "voltage_now");
        const auto amps = number(*battery, "current_now");
        if (!volts || !amps)
            return std::nullopt;
        total += std::fabs(*volts) * std::fabs(*amps) / 1e12;
    }
    return total;
}

// Hours until empty (or full) from energy or charge over power or current.
std::optional<double> hoursFor(const std::vector<const Attributes*>& batteries, bool toFull)
{
    const auto ratio = [&](const char* now, const char* full, const char* rate) -> std::optional<double> {
        const auto level = sum(batteries, now);
        const auto flow = sum(batteries, rate);
        if (!level || !flow || *flow <= 0)
            return std::nullopt;
        if (!toFull)
            return *level / *flow;
        const auto capacity = sum(batteries, full);
        if (!capacity)
            return std::nullopt;
        return (*capacity - *level) / *flow;
    };
    if (auto hours = ratio("energy_now", "energy_full", "power_now"))
        return hours;
    return ratio("charge_now", "charge_full", "current_now");
}

// The kernel's own estimate, when every battery gives one; a negative or zero estimate is no estimate.
std::optional<int> minutesFromKernel(const std::vector<const Attributes*>& batteries, const char* key)
{
    double seconds = 0;
    for (const auto* battery : batteries) {
        const auto value = number(*battery, key);
        if (!value || *value <= 0)
            return std::nullopt;
        seconds += *value;
    }
    return positiveMinutes(seconds / 60.0);
}

void fillCapacities(BatteryStats& stats, const Attributes& first)
{
    stats.designCapacity = milliampHours(number(first, "charge_full_design"));
    stats.maxCapacity = milliampHours(number(first, "charge_full"));
    if (stats.designCapacity || stats.maxCapacity)
        return;
    // Energy-only batteries: µWh / µV = Ah at the design voltage.
    auto volts = number(first, "voltage_min_design");
    if (!volts || *volts <= 0)
        volts = number(first, "voltage_now");
    if (!volts || *volts <= 0)
        return;
    const auto toMah = [&](const char* key) -> std::optional<int> {
        const auto energy = number(first, key);
        if (!energy)
            return std::nullopt;
        return milliampHours(*energy / *volts * 1e6);
    };
    stats.designCapacity = toMah("energy_full_design");
    stats.maxCapacity = toMah("energy_full");
}

} // namespace

Attributes parseUevent(std::string_view text)
{
    Attributes attributes;
    TextScan::forEachLine(text, [&](std::string_view line) {
        constexpr std::string_view prefix = "POWER_SUPPLY_";
        const auto equals = line.find('=');
        if (!line.starts_with(prefix) || equals == std::string_view::npos || equals <= prefix.size())
            return;
        std::string key(line.substr(prefix.size(), equals - prefix.size()));
        for (auto& c : key)
            c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
        attributes[key] = std::string(line.substr(equals + 1));
    });
    return attributes;
}

std::optional<BatteryStats> battery(std::span<const Attributes> supplies)
{
    std::vector<const Attributes*> batteries;
    bool sawExternal = false;
    bool externalOnline = false;
    for (const auto& supply : supplies) {
        if (isBattery(supply) && number(supply, "capacity"))
            batteries.push_back(&supply);
        if (isExternalPower(supply)) {
            sawExternal = true;
            externalOnline = externalOnline || number(supply, "online").value_or(0) >= 1;
        }
    }
    if (batteries.empty())
        return std::nullopt;

    bool charging = false;
    bool discharging = false;
    bool full = false;
    for (const auto* battery : batteries) {
        const auto status = word(*battery, "status");
        charging = charging || status == "Charging";
        discharging = discharging || status == "Discharging";
        full = full || status == "Full" || status == "Not charging";
    }
    BatteryStats stats{.percent = chargePercent(batteries),
        .charging = charging,
        .onAC = sawExternal ? externalOnline : (charging || full)};

    // ACPI reports magnitudes, so the sign comes from the status.
    if (const auto watts = powerMagnitude(batteries))
        stats.powerW = discharging ? -*watts : *watts;
    if (discharging && !charging) {
        stats.minutesLeft = minutesFromKernel(batteries, "time_to_empty_now");
        if (!stats.minutesLeft)
            if (const auto hours = hoursFor(batteries, false))
                stats.minutesLeft = positiveMinutes(*hours * 60);
    }
    if (charging) {
        stats.minutesToFull = minutesFromKernel(batteries, "time_to_full_now");
        if (!stats.minutesToFull)
            if (const auto hours = hoursFor(batteries, true))
                stats.minutesToFull = positiveMinutes(*hours * 60);
    }
    const Attributes& first = *batteries.front();
    if (const auto cycles = number(first, "cycle_count"); cycles && *cycles > 0 && *cycles < 1e6)
        stats.cycles = static_cast<int>(*cycles);
    fillCapacities(stats, first);
    if (const auto tenths = number(first, "temp"); tenths && std::fabs(*tenths) < 10000)
        stats.temperature = *tenths / 10.0;
    if (const auto health = word(first, "health"); !health.empty())
        stats.condition = std::string(health);
    return stats;
}

} // namespace vexel::PowerSupply
