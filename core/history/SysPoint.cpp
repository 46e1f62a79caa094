#include "history/SysPoint.h"

namespace vexel {

nlohmann::ordered_json toJson(const SysPoint& point)
{
    nlohmann::ordered_json json;
    json["t"] = point.t;
    json["dur"] = point.dur;
    json["cpu"] = point.cpu;
    json["cpuMax"] = point.cpuMax;
    json["mem"] = point.mem;
    json["memMax"] = point.memMax;
    json["pressure"] = point.pressure;
    json["swap"] = point.swap;
    json["diskR"] = point.diskR;
    json["diskW"] = point.diskW;
    json["netIn"] = point.netIn;
    json["netOut"] = point.netOut;
    if (point.gpu)
        json["gpu"] = *point.gpu;
    if (point.gpuMax)
        json["gpuMax"] = *point.gpuMax;
    if (point.power)
        json["power"] = *point.power;
    if (point.battery)
        json["battery"] = *point.battery;
    json["thermal"] = point.thermal;
    return json;
}

} // namespace vexel
