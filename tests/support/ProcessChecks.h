#pragma once

#include "io/Files.h"
#include "processes/ProcRecord.h"
#include "processes/linux/ProcListing.h"

#include <algorithm>
#include <filesystem>
#include <set>
#include <string>
#include <sys/types.h>
#include <vector>

namespace vexel::testing {

// How many of this process's descriptors are open on /proc/<pid>/stat of one of `pids`.
inline size_t statFilesHeldOf(const std::vector<pid_t>& pids)
{
    const std::set<pid_t> wanted(pids.begin(), pids.end());
    size_t held = 0;
    for (const auto& entry : std::filesystem::directory_iterator("/proc/self/fd")) {
        const auto target = vexel::Files::readLink(entry.path().string()).value_or("");
        if (!target.starts_with("/proc/") || !target.ends_with("/stat"))
            continue;
        const auto pid = vexel::ProcListing::pidOf(std::string_view(target).substr(6, target.size() - 11));
        held += pid && wanted.contains(*pid) ? 1 : 0;
    }
    return held;
}

inline bool listsEvery(const std::vector<vexel::ProcRecord>& records, const std::vector<pid_t>& pids)
{
    std::set<pid_t> listed;
    for (const auto& record : records) {
        if (record.cpuTime)
            listed.insert(record.pid);
    }
    return std::all_of(pids.begin(), pids.end(), [&](pid_t pid) { return listed.contains(pid); });
}

} // namespace vexel::testing
