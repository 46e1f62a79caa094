#include "monitor/Frame.h"

#include <algorithm>
#include <cctype>

namespace vexel {

namespace {

std::string folded(std::string_view text)
{
    std::string result(text);
    for (auto& c : result)
        c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    return result;
}

} // namespace

const AppGroup* Frame::app(std::string_view query) const
{
    const std::string wanted = folded(query);
    for (const auto& group : apps) {
        if (folded(group.name) == wanted)
            return &group;
    }
    for (const auto& group : apps) {
        if (folded(group.name).find(wanted) != std::string::npos)
            return &group;
    }
    return nullptr;
}

std::pair<SysPoint, std::vector<AppPoint>> Frame::historyPoints() const
{
    SysPoint sys;
    sys.t = time - interval;
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
    points.reserve(apps.size());
    for (const auto& group : apps) {
        points.push_back(AppPoint{sys.t, interval, group.id, group.name, group.cpu, group.cpu,
            static_cast<double>(group.memory), group.energyW.value_or(0) * interval,
            (group.diskRead + group.diskWrite) * interval, (group.netIn + group.netOut) * interval});
    }
    return {sys, points};
}

} // namespace vexel
