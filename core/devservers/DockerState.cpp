#include "devservers/DockerState.h"

namespace vexel {

nlohmann::ordered_json toJson(const Container& container)
{
    nlohmann::ordered_json json;
    json["id"] = container.id;
    json["name"] = container.name;
    json["image"] = container.image;
    json["state"] = container.state;
    json["status"] = container.status;
    json["ports"] = container.ports;
    if (container.project)
        json["project"] = *container.project;
    if (container.cpu)
        json["cpu"] = *container.cpu;
    if (container.memory)
        json["memory"] = *container.memory;
    if (container.memoryLimit)
        json["memoryLimit"] = *container.memoryLimit;
    return json;
}

} // namespace vexel
