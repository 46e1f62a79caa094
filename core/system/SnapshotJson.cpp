#include "system/SnapshotJson.h"

namespace vexel {

using Json = nlohmann::ordered_json;

namespace {

template <typename T> void putOptional(Json& json, const char* key, const std::optional<T>& value)
{
    if (value)
        json[key] = *value;
}

// Reads the typed member `key`; nothing when it is missing or of another type.
std::optional<double> number(const Json& json, const char* key)
{
    const auto it = json.find(key);
    if (it == json.end() || !it->is_number())
        return std::nullopt;
    return it->get<double>();
}

std::optional<long long> integer(const Json& json, const char* key)
{
    const auto it = json.find(key);
    if (it == json.end() || !it->is_number_integer())
        return std::nullopt;
    return it->get<long long>();
}

std::optional<uint64_t> count(const Json& json, const char* key)
{
    const auto it = json.find(key);
    if (it == json.end() || !it->is_number_integer())
        return std::nullopt;
    if (it->is_number_unsigned())
        return it->get<uint64_t>();
    const auto value = it->get<long long>();
    if (value < 0)
        return std::nullopt;
    return static_cast<uint64_t>(value);
}

std::optional<bool> boolean(const Json& json, const char* key)
{
    const auto it = json.find(key);
    if (it == json.end() || !it->is_boolean())
        return std::nullopt;
    return it->get<bool>();
}

std::optional<std::string> text(const Json& json, const char* key)
{
    const auto it = json.find(key);
    if (it == json.end() || !it->is_string())
        return std::nullopt;
    return it->get<std::string>();
}

// An optional member: absent is fine, present with the wrong type fails.
template <typename T, typename Reader>
bool readOptional(const Json& json, const char* key, Reader read, std::optional<T>& into)
{
    if (!json.contains(key))
        return true;
    const auto value = read(json, key);
    if (!value)
        return false;
    into = static_cast<T>(*value);
    return true;
}

std::optional<CPUStats> cpuFromJson(const Json& json)
{
    if (!json.is_object())
        return std::nullopt;
    CPUStats cpu;
    const auto user = number(json, "user");
    const auto system = number(json, "system");
    const auto load1 = number(json, "load1");
    const auto load5 = number(json, "load5");
    const auto load15 = number(json, "load15");
    const auto performance = integer(json, "performanceCores");
    const auto efficiency = integer(json, "efficiencyCores");
    const auto cores = json.find("cores");
    if (!user || !system || !load1 || !load5 || !load15 || !performance || !efficiency || cores == json.end()
        || !cores->is_array())
        return std::nullopt;
    for (const auto& core : *cores) {
        if (!core.is_number())
            return std::nullopt;
        cpu.cores.push_back(core.get<double>());
    }
    cpu.user = *user;
    cpu.system = *system;
    cpu.load1 = *load1;
    cpu.load5 = *load5;
    cpu.load15 = *load15;
    cpu.performanceCores = static_cast<int>(*performance);
    cpu.efficiencyCores = static_cast<int>(*efficiency);
    return cpu;
}

std::optional<MemoryStats> memoryFromJson(const Json& json)
{
    if (!json.is_object())
        return std::nullopt;
    const auto total = count(json, "total");
    const auto app = count(json, "app");
    const auto wired = count(json, "wired");
    const auto compressed = count(json, "compressed");
    const auto cached = count(json, "cached");
    const auto free = count(json, "free");
    const auto swapUsed = count(json, "swapUsed");
    const auto pressureRaw = integer(json, "pressure");
    if (!total || !app || !wired || !compressed || !cached || !free || !swapUsed || !pressureRaw)
        return std::nullopt;
    const auto pressure = memoryPressureFromRaw(*pressureRaw);
    if (!pressure)
        return std::nullopt;
    return MemoryStats{*total, *app, *wired, *compressed, *cached, *free, *swapUsed, *pressure};
}

std::optional<VolumeInfo> volumeFromJson(const Json& json)
{
    if (!json.is_object())
        return std::nullopt;
    const auto name = text(json, "name");
    const auto path = text(json, "path");
    const auto total = count(json, "total");
    const auto available = count(json, "available");
    if (!name || !path || !total || !available)
        return std::nullopt;
    return VolumeInfo{*name, *path, *total, *available};
}

std::optional<DiskStats> diskFromJson(const Json& json)
{
    if (!json.is_object())
        return std::nullopt;
    const auto readRate = number(json, "readRate");
    const auto writeRate = number(json, "writeRate");
    const auto volumes = json.find("volumes");
    if (!readRate || !writeRate || volumes == json.end() || !volumes->is_array())
        return std::nullopt;
    DiskStats disk;
    for (const auto& entry : *volumes) {
        auto volume = volumeFromJson(entry);
        if (!volume)
            return std::nullopt;
        disk.volumes.push_back(std::move(*volume));
    }
    disk.readRate = *readRate;
    disk.writeRate = *writeRate;
    return disk;
}

std::optional<NetStats> netFromJson(const Json& json)
{
    if (!json.is_object())
        return std::nullopt;
    const auto inRate = number(json, "inRate");
    const auto outRate = number(json, "outRate");
    if (!inRate || !outRate)
        return std::nullopt;
    return NetStats{*inRate, *outRate};
}

std::optional<GPUStats> gpuFromJson(const Json& json)
{
    if (!json.is_object())
        return std::nullopt;
    const auto utilisation = number(json, "utilisation");
    const auto name = text(json, "name");
    if (!utilisation || !name)
        return std::nullopt;
    return GPUStats{*utilisation, *name};
}

} // namespace

Json toJson(const CPUStats& cpu)
{
    Json json;
    json["user"] = cpu.user;
    json["system"] = cpu.system;
    json["cores"] = cpu.cores;
    json["load1"] = cpu.load1;
    json["load5"] = cpu.load5;
    json["load15"] = cpu.load15;
    json["performanceCores"] = cpu.performanceCores;
    json["efficiencyCores"] = cpu.efficiencyCores;
    return json;
}

Json toJson(const MemoryStats& memory)
{
    Json json;
    json["total"] = memory.total;
    json["app"] = memory.app;
    json["wired"] = memory.wired;
    json["compressed"] = memory.compressed;
    json["cached"] = memory.cached;
    json["free"] = memory.free;
    json["swapUsed"] = memory.swapUsed;
    json["pressure"] = rawValue(memory.pressure);
    return json;
}

Json toJson(const VolumeInfo& volume)
{
    Json json;
    json["name"] = volume.name;
    json["path"] = volume.path;
    json["total"] = volume.total;
    json["available"] = volume.available;
    return json;
}

Json toJson(const DiskStats& disk)
{
    Json json;
    json["volumes"] = Json::array();
    for (const auto& volume : disk.volumes)
        json["volumes"].push_back(toJson(volume));
    json["readRate"] = disk.readRate;
    json["writeRate"] = disk.writeRate;
    return json;
}

Json toJson(const NetStats& net)
{
    Json json;
    json["inRate"] = net.inRate;
    json["outRate"] = net.outRate;
    return json;
}

Json toJson(const GPUStats& gpu)
{
    Json json;
    json["utilisation"] = gpu.utilisation;
    json["name"] = gpu.name;
    return json;
}

Json toJson(const BatteryStats& battery)
{
    Json json;
    json["percent"] = battery.percent;
    json["charging"] = battery.charging;
    json["onAC"] = battery.onAC;
    putOptional(json, "minutesLeft", battery.minutesLeft);
    putOptional(json, "minutesToFull", battery.minutesToFull);
    putOptional(json, "powerW", battery.powerW);
    putOptional(json, "cycles", battery.cycles);
    putOptional(json, "designCapacity", battery.designCapacity);
    putOptional(json, "maxCapacity", battery.maxCapacity);
    putOptional(json, "temperature", battery.temperature);
    putOptional(json, "condition", battery.condition);
    return json;
}

Json toJson(const SystemSnapshot& snapshot)
{
    Json json;
    json["time"] = snapshot.time;
    json["cpu"] = toJson(snapshot.cpu);
    json["memory"] = toJson(snapshot.memory);
    json["disk"] = toJson(snapshot.disk);
    json["net"] = toJson(snapshot.net);
    if (snapshot.gpu)
        json["gpu"] = toJson(*snapshot.gpu);
    if (snapshot.battery)
        json["battery"] = toJson(*snapshot.battery);
    json["thermal"] = rawValue(snapshot.thermal);
    return json;
}

std::optional<BatteryStats> batteryFromJson(const Json& json)
{
    if (!json.is_object())
        return std::nullopt;
    const auto percent = integer(json, "percent");
    const auto charging = boolean(json, "charging");
    const auto onAC = boolean(json, "onAC");
    if (!percent || !charging || !onAC)
        return std::nullopt;
    BatteryStats battery(static_cast<int>(*percent), *charging, *onAC);
    const bool ok = readOptional(json, "minutesLeft", integer, battery.minutesLeft)
        && readOptional(json, "minutesToFull", integer, battery.minutesToFull)
        && readOptional(json, "powerW", number, battery.powerW) && readOptional(json, "cycles", integer, battery.cycles)
        && readOptional(json, "designCapacity", integer, battery.designCapacity)
        && readOptional(json, "maxCapacity", integer, battery.maxCapacity)
        && readOptional(json, "temperature", number, battery.temperature)
        && readOptional(json, "condition", text, battery.condition);
    if (!ok)
        return std::nullopt;
    return battery;
}

std::optional<SystemSnapshot> snapshotFromJson(const Json& json)
{
    if (!json.is_object())
        return std::nullopt;
    const auto time = number(json, "time");
    const auto thermalRaw = integer(json, "thermal");
    if (!time || !thermalRaw || !json.contains("cpu") || !json.contains("memory") || !json.contains("disk")
        || !json.contains("net"))
        return std::nullopt;
    const auto thermal = thermalLevelFromRaw(*thermalRaw);
    auto cpu = cpuFromJson(json["cpu"]);
    auto memory = memoryFromJson(json["memory"]);
    auto disk = diskFromJson(json["disk"]);
    auto net = netFromJson(json["net"]);
    if (!thermal || !cpu || !memory || !disk || !net)
        return std::nullopt;
    SystemSnapshot snapshot;
    snapshot.time = *time;
    snapshot.cpu = std::move(*cpu);
    snapshot.memory = *memory;
    snapshot.disk = std::move(*disk);
    snapshot.net = *net;
    snapshot.thermal = *thermal;
    if (json.contains("gpu")) {
        snapshot.gpu = gpuFromJson(json["gpu"]);
        if (!snapshot.gpu)
            return std::nullopt;
    }
    if (json.contains("battery")) {
        snapshot.battery = batteryFromJson(json["battery"]);
        if (!snapshot.battery)
            return std::nullopt;
    }
    return snapshot;
}

} // namespace vexel
