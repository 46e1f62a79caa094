#pragma once

#include "monitor/Monitor.h"
#include "synth/FixtureSources.h"
#include "system/FixtureSystemSource.h"

#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace vexel {

// A simulated Mac: a fixed, realistic table of processes whose counters
// advance with simulated time, served to an ordinary Monitor through fixture
// sources. The same number of advances always gives the same figures.
class DemoWorld {
public:
    // One simulated process: its record and its nominal load.
    struct Proc {
        ProcRecord rec;
        double cpu = 0; // fraction of one core
        double diskW = 0; // bytes per second
        double diskR = 0;
        double netIn = 0;
        double netOut = 0;
        double watts = 0;
        double factor = 1; // this tick's wobble, 0.65…1.35 (× 30 under strain for the heavy ones)
    };

    // The world at `now` (seconds since the epoch), with its table built.
    explicit DemoWorld(double now = 1'795'000'000);

    // Adds a process; a pid of 0 takes the next free one. `uid` is 501 for the
    // user and 0 for root, `mem` megabytes resident, `startAgo` seconds before now.
    int32_t add(const std::string& name, const std::optional<std::string>& path, int32_t ppid, uint32_t uid,
        int32_t pid, double cpu, double mem, double startAgo, double diskW = 0, double diskR = 0, double netIn = 0,
        double netOut = 0, double watts = 0);

    // Moves simulated time on and grows every living process's counters, then syncs.
    void advance(double seconds);
    // Republishes the table to the fixture sources.
    void sync();

    // A monitor wired to this world's sources, naming apps from the world's own table.
    [[nodiscard]] std::unique_ptr<Monitor> monitor();
    // The same, with the world moved on by `seconds` before every reading of
    // the process table: two samples taken back to back then differ as two
    // real ones `seconds` apart would (the report service's fixture mode).
    [[nodiscard]] std::unique_ptr<Monitor> advancingMonitor(double seconds);

    // The display names of the simulated app bundles.
    [[nodiscard]] std::optional<std::string> displayName(const std::string& bundlePath) const;

    [[nodiscard]] const std::vector<Proc>& procs() const { return m_procs; }
    [[nodiscard]] const Proc* find(const std::string& name) const;
    [[nodiscard]] double now() const { return m_now; }
    [[nodiscard]] int tick() const { return m_tick; }
    [[nodiscard]] const std::string& home() const { return m_home; }
    [[nodiscard]] const std::map<ProcKey, NetCounter>& net() const { return m_net; }

    bool strained = false; // put the machine under load

    std::shared_ptr<FixtureProcessSource> processSource = std::make_shared<FixtureProcessSource>();
    std::shared_ptr<FixtureNetSource> netSource = std::make_shared<FixtureNetSource>();
    std::shared_ptr<FixtureSystemSource> systemSource = std::make_shared<FixtureSystemSource>(SystemSnapshot{});
    std::shared_ptr<FixturePortSource> portSource = std::make_shared<FixturePortSource>();
    std::shared_ptr<FixtureDockerSource> dockerSource = std::make_shared<FixtureDockerSource>();

    // One-off events already staged (for snapshot mode's pictures).
    std::set<std::string> markers;

private:
    [[nodiscard]] MonitorSources sources(std::shared_ptr<ProcessSource> processes);
    void build();
    void buildSystem();
    void buildBrowser();
    void buildEditor();
    void buildTerminal();
    void buildDatabaseAndIde();
    void buildEverydayApps();
    void buildServices();
    [[nodiscard]] SystemSnapshot systemSnapshot() const;
    [[nodiscard]] static double noise(int tick, size_t index);

    std::vector<Proc> m_procs;
    std::string m_home = "/Users/alex";
    double m_now;
    int m_tick = 0;
    int32_t m_nextPID = 300;
    std::map<ProcKey, NetCounter> m_net;
    std::map<std::string, std::string> m_displayNames; // bundle path → name
    std::set<std::string> m_files; // files that exist in the simulated home
};

} // namespace vexel
