#include "synth/DemoWorld.h"

#include "grouping/AppGrouper.h"
#include "grouping/AppIdentity.h"

#include <cmath>
#include <limits>
#include <numeric>

namespace vexel {

namespace {

constexpr double megabyte = 1048576.0;
constexpr double strainFactor = 30;
constexpr double heavyRenderer = 0.04; // cores: renderers above this carry the strain

uint64_t grown(std::optional<uint64_t> counter, double amount)
{
    return counter.value_or(0) + static_cast<uint64_t>(std::max(amount, 0.0));
}

} // namespace

DemoWorld::DemoWorld(double now)
    : m_now(now)
{
    build();
    sync();
}

int32_t DemoWorld::add(const std::string& name, const std::optional<std::string>& path, int32_t ppid, uint32_t uid,
    int32_t pid, double cpu, double mem, double startAgo, double diskW, double diskR, double netIn, double netOut,
    double watts)
{
    Proc proc;
    proc.rec.pid = pid != 0 || name == "kernel_task" ? pid : m_nextPID++;
    proc.rec.ppid = ppid;
    proc.rec.uid = uid;
    proc.rec.name = name;
    proc.rec.path = path;
    proc.rec.start = std::floor(m_now - startAgo);
    // What the process has done so far, at its nominal load.
    proc.rec.cpuTime = cpu * startAgo;
    proc.rec.memory = static_cast<uint64_t>(mem * megabyte);
    proc.rec.memoryIsFootprint = uid == 501;
    if (uid == 501 || uid == 0) {
        proc.rec.diskWrite = static_cast<uint64_t>(diskW * startAgo);
        proc.rec.diskRead = static_cast<uint64_t>(diskR * startAgo);
    }
    proc.cpu = cpu;
    proc.diskW = diskW;
    proc.diskR = diskR;
    proc.netIn = netIn;
    proc.netOut = netOut;
    proc.watts = watts;
    m_procs.push_back(proc);
    if (netIn > 0 || netOut > 0)
        m_net[ProcKey::of(proc.rec)]
            = NetCounter{static_cast<uint64_t>(netIn * startAgo), static_cast<uint64_t>(netOut * startAgo)};
    return proc.rec.pid;
}

double DemoWorld::noise(int tick, size_t index)
{
    int64_t a = 0;
    int64_t b = 0;
    int64_t n = 0;
    if (__builtin_mul_overflow(static_cast<int64_t>(tick), int64_t{7919}, &a)
        || __builtin_mul_overflow(static_cast<int64_t>(index), int64_t{104729}, &b) || __builtin_add_overflow(a, b, &n))
        n = std::numeric_limits<int64_t>::max();
    const double x = std::sin(static_cast<double>(n) * 12.9898) * 43758.5453;
    return x - std::floor(x);
}

void DemoWorld::advance(double seconds)
{
    ++m_tick;
    m_now += seconds;
    for (size_t i = 0; i < m_procs.size(); ++i) {
        Proc& proc = m_procs[i];
        if (proc.rec.zombie)
            continue;
        const double f = 0.65 + 0.7 * noise(m_tick, i);
        const bool heavy = proc.rec.name == "SourceKitService"
            || (proc.rec.name.find("Renderer") != std::string::npos && proc.cpu >= heavyRenderer);
        const double m = strained && heavy ? strainFactor : 1.0;
        proc.factor = f * m;
        proc.rec.cpuTime = proc.rec.cpuTime.value_or(0) + f * (proc.cpu * seconds) * m;
        if (proc.diskW > 0 || proc.diskR > 0) {
            proc.rec.diskWrite = grown(proc.rec.diskWrite, f * (proc.diskW * seconds));
            proc.rec.diskRead = grown(proc.rec.diskRead, f * (proc.diskR * seconds));
        }
        if (proc.netIn > 0 || proc.netOut > 0) {
            auto& counter = m_net[ProcKey::of(proc.rec)];
            counter.bytesIn = grown(counter.bytesIn, f * proc.netIn * seconds);
            counter.bytesOut = grown(counter.bytesOut, f * proc.netOut * seconds);
        }
    }
    sync();
}

void DemoWorld::sync()
{
    processSource->records.clear();
    for (const auto& proc : m_procs)
        processSource->records.push_back(proc.rec);
    netSource->values.clear();
    for (const auto& [key, counter] : m_net)
        netSource->values[key.pid] = counter;
    systemSource->set(systemSnapshot());
}

namespace {

// The world's process table, read after moving the world on.
class AdvancingProcessSource final : public ProcessSource {
public:
    AdvancingProcessSource(DemoWorld& world, double seconds)
        : m_world(world)
        , m_seconds(seconds)
    {
    }
    [[nodiscard]] std::vector<ProcRecord> snapshot(ProcessScope scope) override
    {
        m_world.advance(m_seconds);
        return m_world.processSource->snapshot(scope);
    }
    [[nodiscard]] std::optional<std::string> cwd(int32_t pid) override { return m_world.processSource->cwd(pid); }

private:
    DemoWorld& m_world;
    double m_seconds;
};

} // namespace

std::unique_ptr<Monitor> DemoWorld::advancingMonitor(double seconds)
{
    return std::make_unique<Monitor>(sources(std::make_shared<AdvancingProcessSource>(*this, seconds)));
}

std::unique_ptr<Monitor> DemoWorld::monitor()
{
    return std::make_unique<Monitor>(sources(processSource));
}

MonitorSources DemoWorld::sources(std::shared_ptr<ProcessSource> processes)
{
    MonitorSources sources;
    sources.processes = std::move(processes);
    sources.net = netSource;
    sources.system = systemSource;
    sources.ports = portSource;
    sources.docker = dockerSource;
    sources.identities
        = std::make_shared<MacIdentityRules>([this](const std::string& path) { return displayName(path); });
    sources.home = m_home;
    sources.myUID = 501;
    sources.exists = [this](const std::string& path) { return m_files.contains(path); };
    return sources;
}

std::optional<std::string> DemoWorld::displayName(const std::string& bundlePath) const
{
    const auto found = m_displayNames.find(bundlePath);
    return found == m_displayNames.end() ? std::nullopt : std::optional(found->second);
}

const DemoWorld::Proc* DemoWorld::find(const std::string& name) const
{
    for (const auto& proc : m_procs) {
        if (proc.rec.name == name)
            return &proc;
    }
    return nullptr;
}

namespace {

// Each core's share of `load` (the machine's busy fraction), in proportion
// to its weight but never above a whole core: what a full core can't take
// goes to the others, so that the cores' mean is the load itself.
std::vector<double> shareLoad(double load, const std::vector<double>& weights)
{
    std::vector<double> cores(weights.size(), 0.0);
    double left = load * static_cast<double>(weights.size());
    std::vector<size_t> open(weights.size());
    std::iota(open.begin(), open.end(), size_t{0});
    while (left > 1e-12 && !open.empty()) {
        double weight = 0;
        for (const size_t core : open)
            weight += weights[core];
        const double given = left;
        std::vector<size_t> still;
        for (const size_t core : open) {
            const double share = given * weights[core] / weight;
            const double taken = std::min(share, 1.0 - cores[core]);
            cores[core] += taken;
            left -= taken;
            if (cores[core] < 1.0)
                still.push_back(core);
        }
        if (still.size() == open.size())
            break;
        open = std::move(still);
    }
    return cores;
}

// The whole battery, and what the machine draws besides its apps (screen, radios).
constexpr double batteryWattHours = 72;
constexpr double baseWatts = 5;

} // namespace

SystemSnapshot DemoWorld::systemSnapshot() const
{
    constexpr int coreCount = 12;
    double busy = 0;
    double read = 0;
    double written = 0;
    double in = 0;
    double out = 0;
    uint64_t resident = 0;
    for (const auto& proc : m_procs) {
        if (proc.rec.zombie)
            continue;
        busy += proc.cpu * proc.factor;
        read += proc.diskR * proc.factor;
        written += proc.diskW * proc.factor;
        in += proc.netIn * proc.factor;
        out += proc.netOut * proc.factor;
        resident += proc.rec.memory.value_or(0);
    }
    SystemSnapshot snapshot = SystemSnapshot::empty(m_now);
    const double load = std::min(busy / coreCount, 1.0);
    snapshot.cpu.user = load * 0.72;
    snapshot.cpu.system = load * 0.28;
    // Performance cores first and busiest; the efficiency cores carry the background work.
    std::vector<double> weights;
    for (int core = 0; core < coreCount; ++core)
        weights.push_back(
            (core < 6 ? 1.25 - 0.06 * core : 0.55) * (0.9 + 0.2 * noise(m_tick, static_cast<size_t>(core))));
    snapshot.cpu.cores = shareLoad(load, weights);
    snapshot.cpu.load1 = busy * 1.15;
    snapshot.cpu.load5 = busy * 1.05;
    snapshot.cpu.load15 = busy;
    snapshot.cpu.performanceCores = 6;
    snapshot.cpu.efficiencyCores = 6;

    constexpr uint64_t gib = 1ull << 30;
    MemoryStats& memory = snapshot.memory;
    memory.total = 36 * gib;
    memory.app = std::min<uint64_t>(resident, 20 * gib);
    memory.wired = 3 * gib + gib / 4;
    memory.compressed = strained ? 7 * gib : gib + gib / 5;
    memory.cached = 6 * gib;
    const uint64_t held = memory.app + memory.wired + memory.compressed + memory.cached;
    memory.free = memory.total > held ? memory.total - held : 0;
    memory.swapUsed = strained ? 2 * gib + gib / 2 : 0;
    memory.pressure = strained ? MemoryPressure::warning : MemoryPressure::normal;

    snapshot.disk.volumes = {{"Macintosh HD", "/", 994'662'584'320, 412'318'912'512}};
    snapshot.disk.readRate = read;
    snapshot.disk.writeRate = written;
    snapshot.net = {in, out};
    snapshot.gpu = GPUStats{strained ? 0.86 : 0.18, "Apple M3 Pro"};
    BatteryStats battery{.percent = 78};
    // The apps' estimated watts and the rest of the machine: the total is never less than its parts.
    const double drawn = std::round((baseWatts + busy * AppGrouper::estimateWattsPerCore) * 10) / 10;
    battery.powerW = -drawn;
    battery.minutesLeft = static_cast<int>(batteryWattHours * battery.percent / 100 / drawn * 60);
    battery.cycles = 212;
    battery.designCapacity = 6075;
    battery.maxCapacity = 5890;
    battery.temperature = 30.5;
    battery.condition = "Good";
    snapshot.battery = battery;
    snapshot.thermal = strained ? ThermalLevel::serious : ThermalLevel::nominal;
    return snapshot;
}

} // namespace vexel
