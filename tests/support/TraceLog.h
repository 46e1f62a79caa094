#pragma once

#include <string>
#include <vector>

namespace vexel::testing {

// What an `strace -f -e trace=kill,tgkill,tkill,openat,execve,clone,clone3,fork,vfork`
// log shows a program did.
struct TraceFindings {
    std::vector<std::string> signalsSent; // lines of the program's own tasks sending a signal
    std::vector<std::string> writeOpens; // opens for writing or creating, by anyone, but of /dev/null
    size_t opens = 0; // every openat seen, to show the log was read
};

// Reads a log. A task belongs to `program` until it runs another program:
// threads and children take their creator's program, an execve replaces it.
// So the tools `program` runs (and their own threads) are told apart from it.
[[nodiscard]] TraceFindings readTrace(const std::string& log, const std::string& program);

} // namespace vexel::testing
