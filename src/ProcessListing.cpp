#include "ProcessListing.h"

#include "format/CFormat.h"
#include "format/Fmt.h"
#include "grouping/AppGrouper.h"
#include "grouping/linux/LinuxIdentityRules.h"
#include "grouping/linux/LiveDesktopIndex.h"
#include "monitor/BundleNames.h"
#include "processes/linux/LiveProcessSource.h"

#include <chrono>
#include <cstdio>
#include <thread>

namespace vexel {

namespace {

double currentTime()
{
    using namespace std::chrono;
    return duration<double>(system_clock::now().time_since_epoch()).count();
}

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
    LiveProcessSource source;
    RateTracker tracker;
    (void)tracker.update(source.snapshot(true), std::nullopt, currentTime());
    std::this_thread::sleep_for(std::chrono::seconds(1));
    const auto records = source.snapshot(true);
    const auto rates = tracker.update(records, std::nullopt, currentTime());
    BundleNames names;
    LinuxIdentityRules rules(liveDesktopIndex(), [&](const std::string& path) { return names.name(path); });
    IdentityCache cache;
    const auto groups = AppGrouper::group(records, rates, rules, &cache, AppSort::memory);
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
