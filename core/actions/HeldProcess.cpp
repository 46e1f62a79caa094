#include "actions/HeldProcess.h"

#include <unistd.h>

namespace vexel {

HeldProcess::HeldProcess(int32_t pid, int fd)
    : m_pid(pid)
    , m_fd(fd)
{
}

HeldProcess::~HeldProcess()
{
    if (m_fd >= 0)
        ::close(m_fd);
}

} // namespace vexel
