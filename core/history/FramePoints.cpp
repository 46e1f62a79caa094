#include "history/FramePoints.h"

namespace vexel {

FramePoints historyPoints(const Frame& frame)
{
    const SystemSnapshot& system = frame.system;
    const double interval = frame.interval;
    SysPoint sys;
    sys.t = frame.time - interval;
    sys.dur = interval;
    sys.cpu = sys.cpuMax = system.cpu.user + system.cpu.system;
    sys.mem = sys.memMax = system.memory.usedFraction();
    sys.pressure = rawValue(system.memory.pressure);
    sys.thermal = rawValue(system.thermal);
    sys.swap = static_cast<double>(system.memory.swapUsed);
    sys.diskR = system.disk.readRate * interval;
    sys.diskW = system.disk.writeRate * interval;
    sys.netIn = system.net.inRate * interval;
    sys.netOut = system.net.outRate * interval;
    if (system.gpu)
        sys.gpu = sys.gpuMax = system.gpu->utilisation;
    if (system.battery) {
        sys.power = system.battery->powerW;
        sys.battery = system.battery->percent;
    }
    std::vector<AppPoint> points;
    points.reserve(frame.apps.size());
    for (const auto& group : frame.apps) {
        points.push_back(AppPoint{sys.t, interval, group.id, group.name, group.cpu, group.cpu,
            static_cast<double>(group.memory), group.energyW.value_or(0) * interval,
            (group.diskRead + group.diskWrite) * interval, (group.netIn + group.netOut) * interval});
    }
    return {sys, points};
}

} // namespace vexel
