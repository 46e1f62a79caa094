#include "ProcessListing.h"

#include "format/Fmt.h"
#include "monitor/Monitor.h"

#include <algorithm>
#include <cstdio>

namespace vexel {

namespace {

const char* kindWord(AppKind kind)
{
    switch (kind) {
    case AppKind::app: return "app";
    case AppKind::system: return "system";
    case AppKind::tool: return "tool";
    }
    return "tool";
}

} // namespace

int printApps()
{
    // The live monitor's settled frame: two samples a second apart, grouped as the app groups them.
    auto groups = Monitor::live()->settledSample(1.0).apps;
    std::stable_sort(
        groups.begin(), groups.end(), [](const AppGroup& a, const AppGroup& b) { return a.memory > b.memory; });
    std::printf("%-28s %-7s %5s %7s %9s  %s\n", "APP", "KIND", "PROCS", "CPU", "MEMORY", "PROCESSES");
    for (const auto& group : groups) {
        std::string members;
        for (size_t i = 0; i < group.processes.size() && i < 6; ++i)
            members
                += (i > 0 ? " " : "") + group.processes[i].name + "(" + std::to_string(group.processes[i].pid) + ")";
        if (group.processes.size() > 6)
            members += " …";
        std::printf("%-28s %-7s %5zu %7s %9s  %s\n", group.name.substr(0, 28).c_str(), kindWord(group.kind),
            group.processes.size(), Fmt::cpu(group.cpu).c_str(), Fmt::memory(group.memory).c_str(), members.c_str());
    }
    return 0;
}

} // namespace vexel
