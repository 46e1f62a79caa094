#include "devservers/DockerParser.h"

#include "text/TextScan.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <nlohmann/json.hpp>

namespace vexel::DockerParser {

namespace {

using Json = nlohmann::json;

std::string text(const Json& object, const char* key)
{
    const auto it = object.find(key);
    if (it == object.end())
        return {};
    if (it->is_string())
        return it->get<std::string>();
    // Podman lists names as an array.
    if (it->is_array() && !it->empty() && it->front().is_string())
        return it->front().get<std::string>();
    return {};
}

std::optional<std::string> composeProject(const Json& object)
{
    const auto labels = object.find("Labels");
    if (labels == object.end())
        return std::nullopt;
    constexpr std::string_view key = "com.docker.compose.project";
    if (labels->is_object()) {
        const auto project = labels->find(std::string(key));
        if (project != labels->end() && project->is_string())
            return project->get<std::string>();
        return std::nullopt;
    }
    if (!labels->is_string())
        return std::nullopt;
    const std::string list = labels->get<std::string>();
    size_t start = 0;
    while (start <= list.size()) {
        const auto comma = list.find(',', start);
        const std::string_view label
            = std::string_view(list).substr(start, comma == std::string::npos ? std::string::npos : comma - start);
        if (label.starts_with(key) && label.size() > key.size() && label[key.size()] == '=')
            return std::string(label.substr(key.size() + 1));
        if (comma == std::string::npos)
            break;
        start = comma + 1;
    }
    return std::nullopt;
}

// One JSON object a line, as Docker prints "{{json .}}"; Podman 4 prints a
// single JSON array of objects instead, which is read whole.
template <typename Visit> void forEachObject(std::string_view text, Visit&& visit)
{
    if (TextScan::trim(text).starts_with('[')) {
        const auto array = Json::parse(text, nullptr, false);
        if (!array.is_discarded() && array.is_array()) {
            for (const auto& object : array) {
                if (object.is_object())
                    visit(object);
            }
        }
        return;
    }
    TextScan::forEachLine(text, [&](std::string_view line) {
        line = TextScan::trim(line);
        if (line.empty())
            return;
        const auto json = Json::parse(line, nullptr, false);
        if (!json.is_discarded() && json.is_object())
            visit(json);
    });
}

} // namespace

std::vector<Container> parsePS(std::string_view output)
{
    std::vector<Container> containers;
    forEachObject(output, [&](const Json& object) {
        Container container;
        container.id = text(object, "ID");
        if (container.id.empty())
            container.id = text(object, "Id");
        if (container.id.empty())
            return;
        container.name = text(object, "Names");
        container.image = text(object, "Image");
        container.state = text(object, "State");
        container.status = text(object, "Status");
        container.ports = text(object, "Ports");
        container.project = composeProject(object);
        containers.push_back(std::move(container));
    });
    return containers;
}

std::optional<uint64_t> size(std::string_view value)
{
    value = TextScan::trim(value);
    static constexpr std::array<std::pair<std::string_view, double>, 14> units{
        {{"KiB", 1024.0}, {"MiB", 1048576.0}, {"GiB", 1073741824.0}, {"TiB", 1099511627776.0}, {"kB", 1e3}, {"KB", 1e3},
            {"MB", 1e6}, {"GB", 1e9}, {"TB", 1e12}, {"B", 1.0}, {"k", 1e3}, {"M", 1e6}, {"G", 1e9}, {"b", 1.0}}};
    for (const auto& [unit, factor] : units) {
        if (!value.ends_with(unit))
            continue;
        const auto number = TextScan::toDouble(value.substr(0, value.size() - unit.size()));
        if (!number || !std::isfinite(*number) || *number < 0 || *number * factor >= 1.8e19)
            return std::nullopt;
        return static_cast<uint64_t>(std::llround(*number * factor));
    }
    return std::nullopt;
}

std::map<std::string, Stats> parseStats(std::string_view output)
{
    std::map<std::string, Stats> stats;
    forEachObject(output, [&](const Json& object) {
        Stats entry;
        auto cpu = text(object, "CPUPerc");
        if (cpu.ends_with('%'))
            cpu.pop_back();
        entry.cpu = TextScan::toDouble(cpu);
        const auto usage = text(object, "MemUsage");
        if (const auto slash = usage.find('/'); slash != std::string::npos) {
            // Qualified: an unqualified call with a std::string would find std::size.
            entry.memory = DockerParser::size(usage.substr(0, slash));
            entry.limit = DockerParser::size(usage.substr(slash + 1));
        }
        for (const char* key : {"ID", "Container", "Name"}) {
            const auto id = text(object, key);
            if (!id.empty())
                stats.insert_or_assign(id, entry);
        }
    });
    return stats;
}

std::vector<Container> merge(std::vector<Container> containers, const std::map<std::string, Stats>& stats)
{
    for (auto& container : containers) {
        auto found = stats.find(container.id);
        if (found == stats.end())
            found = stats.find(container.id.substr(0, 12));
        if (found == stats.end())
            found = stats.find(container.name);
        if (found == stats.end())
            continue;
        container.cpu = found->second.cpu;
        container.memory = found->second.memory;
        container.memoryLimit = found->second.limit;
    }
    std::stable_partition(
        containers.begin(), containers.end(), [](const Container& c) { return c.state == "running"; });
    return containers;
}

} // namespace vexel::DockerParser
