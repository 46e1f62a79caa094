#pragma once

#include "io/Files.h"

#include <benchmark/benchmark.h>

#include <csignal>
#include <string>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

// The process counts the process-table benchmarks run at: the machine as it
// is (0), then made up to about 500, 2,000 and 3,000 processes, five times each.
inline void atProcessCounts(benchmark::internal::Benchmark* benchmark)
{
    benchmark->Arg(0)->Arg(500)->Arg(2000)->Arg(3000)->Repetitions(5)->ReportAggregatesOnly(true);
}

// Benchmarks that need a machine with many processes spawn idle children.
// Keeps enough sleeping children alive that /proc lists `total` processes.
class IdleChildren {
public:
    static void ensure(size_t total)
    {
        static IdleChildren children;
        children.resize(total);
    }

private:
    ~IdleChildren() { resize(0); }

    static size_t processCount()
    {
        size_t count = 0;
        for (const auto& name : vexel::Files::list("/proc"))
            count += name.find_first_not_of("0123456789") == std::string::npos ? 1 : 0;
        return count;
    }

    void resize(size_t total)
    {
        while (!m_pids.empty() && (total == 0 || processCount() > total)) {
            ::kill(m_pids.back(), SIGKILL);
            ::waitpid(m_pids.back(), nullptr, 0);
            m_pids.pop_back();
        }
        for (size_t count = processCount(); count < total; ++count) {
            const pid_t pid = ::fork();
            if (pid == 0) {
                ::pause();
                ::_exit(0);
            }
            if (pid > 0)
                m_pids.push_back(pid);
        }
    }

    std::vector<pid_t> m_pids;
};
