#include "devservers/ListenSocket.h"

#include <limits>

namespace vexel {

std::string rawValue(ListenSocket::Family family)
{
    return family == ListenSocket::Family::v6 ? "IPv6" : "IPv4";
}

std::optional<ListenSocket::Family> listenFamilyFromRaw(std::string_view raw)
{
    if (raw == "IPv4")
        return ListenSocket::Family::v4;
    if (raw == "IPv6")
        return ListenSocket::Family::v6;
    return std::nullopt;
}

nlohmann::ordered_json toJson(const ListenSocket& socket)
{
    nlohmann::ordered_json json;
    json["pid"] = socket.pid;
    json["command"] = socket.command;
    json["family"] = rawValue(socket.family);
    json["address"] = socket.address;
    json["port"] = socket.port;
    return json;
}

std::optional<ListenSocket> listenSocketFromJson(const nlohmann::ordered_json& json)
{
    if (!json.is_object())
        return std::nullopt;
    const auto pid = json.find("pid");
    const auto command = json.find("command");
    const auto family = json.find("family");
    const auto address = json.find("address");
    const auto port = json.find("port");
    if (pid == json.end() || !pid->is_number_integer() || command == json.end() || !command->is_string()
        || family == json.end() || !family->is_string() || address == json.end() || !address->is_string()
        || port == json.end() || !port->is_number_unsigned())
        return std::nullopt;
    const auto parsedFamily = listenFamilyFromRaw(family->get<std::string>());
    const auto pidValue = pid->get<long long>();
    const auto portValue = port->get<unsigned long long>();
    if (!parsedFamily || portValue > std::numeric_limits<uint16_t>::max()
        || pidValue < std::numeric_limits<int32_t>::min() || pidValue > std::numeric_limits<int32_t>::max())
        return std::nullopt;
    return ListenSocket{static_cast<int32_t>(pidValue), command->get<std::string>(), *parsedFamily,
        address->get<std::string>(), static_cast<uint16_t>(portValue)};
}

bool reachableFromNetwork(const ListenSocket& socket)
{
    const std::string& address = socket.address;
    const bool loopback
        = address.rfind("127.", 0) == 0 || address == "::1" || address == "localhost" || address == "::ffff:127.0.0.1";
    return !loopback;
}

} // namespace vexel
