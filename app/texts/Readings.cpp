#include "texts/Readings.h"

#include "format/Fmt.h"
#include "system/SensorStats.h"
#include "texts/Vexel.h"

#include <cmath>

namespace vexel::Readings {

QString sensorName(const std::string& chip, const std::string& label)
{
    return Vexel::tr("%1 · %2", "a sensor: its chip and its label")
        .arg(Vexel::words(chipTitle(chip)), QString::fromStdString(label));
}

QString batteryState(const BatteryStats& battery)
{
    if (battery.charging)
        return battery.minutesToFull
            ? Vexel::tr("Charging, full in %1").arg(QString::fromStdString(Fmt::minutes(*battery.minutesToFull)))
            : Vexel::tr("Charging");
    if (battery.onAC)
        return Vexel::tr("On power adapter");
    return battery.minutesLeft
        ? Vexel::tr("On battery, %1 left").arg(QString::fromStdString(Fmt::minutes(*battery.minutesLeft)))
        : Vexel::tr("On battery");
}

QString elapsed(double seconds)
{
    // Days are words; shorter spans are figures with their unit.
    const double days = std::isfinite(seconds) ? std::floor(seconds / 86400) : 0;
    if (days < 1)
        return QString::fromStdString(Fmt::duration(seconds));
    return Vexel::tr("%n day(s)", nullptr, static_cast<int>(std::min(days, 1e9)));
}

QString partOf(const std::string& part, const std::string& whole)
{
    return Vexel::tr("%1 of %2").arg(QString::fromStdString(part), QString::fromStdString(whole));
}

} // namespace vexel::Readings
