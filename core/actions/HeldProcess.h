#pragma once

#include <cstdint>
#include <memory>

namespace vexel {

// A process as it was when a question about it was asked. A signal sent
// through it reaches that process or none: never a later process that was
// given its number while the question waited (on Linux a pidfd, `fd`; -1
// where there is none, and the number alone is used).
class HeldProcess {
public:
    explicit HeldProcess(int32_t pid, int fd = -1);
    ~HeldProcess();
    HeldProcess(const HeldProcess&) = delete;
    HeldProcess& operator=(const HeldProcess&) = delete;

    [[nodiscard]] int32_t pid() const { return m_pid; }
    [[nodiscard]] int fd() const { return m_fd; }

private:
    int32_t m_pid;
    int m_fd;
};

// Shared by the question and the answers that may follow it (the force
// offered after an ignored SIGTERM).
using Held = std::shared_ptr<const HeldProcess>;

} // namespace vexel
