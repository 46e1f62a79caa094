#include "history/AppPoint.h"

namespace vexel {

nlohmann::ordered_json toJson(const AppPoint& point)
{
    nlohmann::ordered_json json;
    json["t"] = point.t;
    json["dur"] = point.dur;
    json["app"] = point.app;
    json["name"] = point.name;
    json["cpu"] = point.cpu;
    json["cpuMax"] = point.cpuMax;
    json["mem"] = point.mem;
    json["energy"] = point.energy;
    json["disk"] = point.disk;
    json["net"] = point.net;
    return json;
}

} // namespace vexel
