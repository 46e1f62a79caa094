#pragma once

#include <csignal>
#include <cstddef>
#include <sys/types.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace vexel::testing {

// Forked children that only sleep, so that the machine holds many more
// processes; killed and reaped when the value goes (or at end()).
class SleepingChildren {
public:
    explicit SleepingChildren(size_t count)
    {
        m_pids.reserve(count);
        for (size_t i = 0; i < count; ++i) {
            const pid_t pid = ::fork();
            if (pid == 0) {
                ::pause();
                ::_exit(0);
            }
            if (pid > 0)
                m_pids.push_back(pid);
        }
    }
    ~SleepingChildren() { end(); }
    SleepingChildren(const SleepingChildren&) = delete;
    SleepingChildren& operator=(const SleepingChildren&) = delete;

    [[nodiscard]] const std::vector<pid_t>& pids() const { return m_pids; }

    void end()
    {
        for (const pid_t pid : m_pids)
            ::kill(pid, SIGKILL);
        for (const pid_t pid : m_pids)
            ::waitpid(pid, nullptr, 0);
        m_pids.clear();
    }

private:
    std::vector<pid_t> m_pids;
};

} // namespace vexel::testing
