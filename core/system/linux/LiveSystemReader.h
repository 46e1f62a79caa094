#pragma once

#include "system/CounterDeltas.h"
#include "system/NetMath.h"
#include "system/SystemSource.h"
#include "system/linux/BatteryReader.h"
#include "system/linux/GpuReader.h"
#include "system/linux/LinuxRoots.h"
#include "system/linux/SensorReader.h"
#include "system/linux/ThermalReader.h"
#include "system/linux/VolumeReader.h"

#include <map>
#include <optional>
#include <string>
#include <vector>

namespace vexel {

// The system source of a Linux machine: /proc and sysfs, read one file at a
// time with a single read each. Rates are differences from the previous call;
// slow, slowly changing readings are cached (volumes and battery 30 s, the
// lists of disks, zram devices and interfaces 60 s, the GPUs for good).
class LiveSystemReader final : public SystemSource {
public:
    // Reads this machine.
    LiveSystemReader();
    // Reads the trees under `roots` (fixture trees in tests).
    explicit LiveSystemReader(LinuxRoots roots);

    [[nodiscard]] SystemSnapshot read(double now) override;

    [[nodiscard]] CPUStats readCPU();
    [[nodiscard]] MemoryStats readMemory();
    [[nodiscard]] DiskStats readDisk(double now);
    [[nodiscard]] NetStats readNet(double now);

private:
    void readLevels();
    void refreshDevices(double now);
    [[nodiscard]] bool isFresh(double at, double now, double seconds) const;
    [[nodiscard]] const std::string& load(const std::string& path);

    LinuxRoots m_roots;
    VolumeReader m_volumeReader;
    GpuReader m_gpuReader;
    BatteryReader m_batteryReader;
    ThermalReader m_thermalReader;
    SensorReader m_sensorReader;

    std::optional<std::vector<CoreTicks>> m_lastTicks;
    CounterDeltas m_disk;
    CounterDeltas m_net;
    int m_performanceCores = 0;
    int m_efficiencyCores = 0;
    MemoryPressure m_pressure = MemoryPressure::normal;
    std::vector<VolumeInfo> m_volumes;
    std::optional<double> m_volumesAt; // when m_volumes was read; absent before the first time
    std::optional<BatteryStats> m_battery;
    std::optional<double> m_batteryAt;

    // Device lists, re-enumerated every 60 seconds.
    std::optional<double> m_devicesAt;
    std::vector<std::string> m_disks;
    std::vector<std::string> m_zramStats;
    std::map<std::string, NetMath::LinuxInterface, std::less<>> m_interfaces;
    bool m_sysfsNet = false;

    std::string m_buffer; // reused for every file read
};

} // namespace vexel
