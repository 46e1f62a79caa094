#include "system/linux/LiveSystemReader.h"

#include "io/Files.h"
#include "system/CPUMath.h"
#include "system/linux/CpuTopology.h"
#include "system/linux/Diskstats.h"
#include "system/linux/Meminfo.h"
#include "system/linux/NetDev.h"
#include "system/linux/PressureStall.h"
#include "system/linux/ProcStat.h"
#include "text/TextScan.h"

#include <algorithm>

namespace vexel {

namespace {

constexpr double volumeSeconds = 30;
constexpr double batterySeconds = 30;
constexpr double deviceListSeconds = 60;

} // namespace

LiveSystemReader::LiveSystemReader()
    : LiveSystemReader(liveRoots())
{
}

LiveSystemReader::LiveSystemReader(LinuxRoots roots)
    : m_roots(std::move(roots))
    , m_volumeReader(m_roots)
    , m_gpuReader(m_roots)
    , m_batteryReader(m_roots)
    , m_thermalReader(m_roots)
    , m_sensorReader(m_roots)
{
    readLevels();
}

const std::string& LiveSystemReader::load(const std::string& path)
{
    if (!Files::readInto(path, m_buffer, 1024 * 1024))
        m_buffer.clear();
    return m_buffer;
}

bool LiveSystemReader::isFresh(double at, double now, double seconds) const
{
    // A clock that went backwards makes every cached reading stale.
    return now >= at && now - at < seconds;
}

void LiveSystemReader::readLevels()
{
    // Intel hybrid parts name their core types through two PMUs.
    const auto core = CpuTopology::countCpuList(Files::readValue(m_roots.sys + "/devices/cpu_core/cpus"));
    if (core) {
        m_performanceCores = *core;
        m_efficiencyCores
            = CpuTopology::countCpuList(Files::readValue(m_roots.sys + "/devices/cpu_atom/cpus")).value_or(0)
            + CpuTopology::countCpuList(Files::readValue(m_roots.sys + "/devices/cpu_lowpower/cpus")).value_or(0);
        return;
    }
    std::vector<long long> capacities;
    const std::string cpus = m_roots.sys + "/devices/system/cpu";
    for (const auto& name : Files::list(cpus)) {
        if (name.size() < 4 || !name.starts_with("cpu") || !TextScan::toU64(name.substr(3)))
            continue;
        if (const auto capacity = TextScan::toI64(Files::readValue(cpus + "/" + name + "/cpu_capacity")))
            capacities.push_back(*capacity);
    }
    const auto levels = CpuTopology::fromCapacities(capacities);
    m_performanceCores = levels.performance;
    m_efficiencyCores = levels.efficiency;
}

void LiveSystemReader::refreshDevices(double now)
{
    if (m_devicesAt && isFresh(*m_devicesAt, now, deviceListSeconds))
        return;
    m_devicesAt = now;
    m_disks.clear();
    m_zramStats.clear();
    const std::string block = m_roots.sys + "/block";
    for (const auto& name : Files::list(block)) {
        const std::string folder = block + "/" + name;
        if (name.starts_with("zram"))
            m_zramStats.push_back(folder + "/mm_stat");
        // Whole physical disks only: partitions, loop, zram, dm and md would count bytes twice.
        else if (Files::exists(folder + "/device") && Files::readValue(folder + "/hidden") != "1")
            m_disks.push_back(name);
    }
    std::sort(m_disks.begin(), m_disks.end());
    m_interfaces.clear();
    const std::string net = m_roots.sys + "/class/net";
    const auto names = Files::list(net);
    m_sysfsNet = !names.empty();
    for (const auto& name : names) {
        m_interfaces[name] = Files::exists(net + "/" + name + "/device") ? NetMath::LinuxInterface::physical
                                                                         : NetMath::LinuxInterface::virtualOnly;
    }
}

CPUStats LiveSystemReader::readCPU()
{
    CPUStats cpu;
    auto current = ProcStat::parseCoreTicks(load(m_roots.proc + "/stat"));
    if (m_lastTicks) {
        auto usage = CPUMath::usage(*m_lastTicks, current);
        cpu.user = usage.user;
        cpu.system = usage.system;
        cpu.cores = std::move(usage.cores);
    } else {
        cpu.cores.assign(current.size(), 0.0);
    }
    m_lastTicks = std::move(current);
    if (const auto load = ProcStat::parseLoadAverage(this->load(m_roots.proc + "/loadavg"))) {
        cpu.load1 = (*load)[0];
        cpu.load5 = (*load)[1];
        cpu.load15 = (*load)[2];
    }
    cpu.performanceCores = m_performanceCores;
    cpu.efficiencyCores = m_efficiencyCores;
    return cpu;
}

MemoryStats LiveSystemReader::readMemory()
{
    const auto fields = Meminfo::parse(load(m_roots.proc + "/meminfo"));
    uint64_t zram = 0;
    for (const auto& path : m_zramStats)
        zram += Meminfo::parseZramMemUsed(load(path)).value_or(0);
    MemoryStats memory = Meminfo::toMemoryStats(fields, zram);
    double available = 1.0;
    if (fields.memTotal && *fields.memTotal > 0 && fields.memAvailable)
        available = static_cast<double>(*fields.memAvailable) / static_cast<double>(*fields.memTotal);
    const auto stalls = PressureStall::parse(load(m_roots.proc + "/pressure/memory"));
    m_pressure = PressureStall::judge(available, stalls, m_pressure);
    memory.pressure = m_pressure;
    return memory;
}

DiskStats LiveSystemReader::readDisk(double now)
{
    refreshDevices(now);
    DiskStats disk;
    for (const auto& device : Diskstats::parse(load(m_roots.proc + "/diskstats"))) {
        if (std::binary_search(m_disks.begin(), m_disks.end(), device.name))
            m_disk.add(device.name, device.bytesRead, device.bytesWritten);
    }
    std::tie(disk.readRate, disk.writeRate) = m_disk.finish(now);
    if (!m_volumesAt || !isFresh(*m_volumesAt, now, volumeSeconds)) {
        m_volumes = m_volumeReader.volumes();
        m_volumesAt = now;
    }
    disk.volumes = m_volumes;
    return disk;
}

NetStats LiveSystemReader::readNet(double now)
{
    refreshDevices(now);
    NetStats net;
    for (const auto& interface : NetDev::parse(load(m_roots.proc + "/net/dev"))) {
        auto kind = NetMath::LinuxInterface::unknown;
        if (m_sysfsNet) {
            const auto known = m_interfaces.find(interface.name);
            kind = known == m_interfaces.end() ? NetMath::LinuxInterface::virtualOnly : known->second;
        }
        if (NetMath::countsLinuxInterface(interface.name, kind))
            m_net.add(interface.name, interface.received, interface.sent);
    }
    std::tie(net.inRate, net.outRate) = m_net.finish(now);
    return net;
}

SystemSnapshot LiveSystemReader::read(double now)
{
    refreshDevices(now);
    SystemSnapshot snapshot = SystemSnapshot::empty(now);
    snapshot.cpu = readCPU();
    snapshot.memory = readMemory();
    snapshot.disk = readDisk(now);
    snapshot.net = readNet(now);
    snapshot.gpu = m_gpuReader.read(now);
    // The cached value may itself be "no battery".
    if (!m_batteryAt || !isFresh(*m_batteryAt, now, batterySeconds)) {
        m_battery = m_batteryReader.read();
        m_batteryAt = now;
    }
    snapshot.battery = m_battery;
    // One reading of the sensors serves the temperatures shown and the thermal level.
    snapshot.sensors = m_sensorReader.read(now);
    snapshot.thermal = m_thermalReader.read(now, snapshot.sensors.temperatures);
    return snapshot;
}

} // namespace vexel
