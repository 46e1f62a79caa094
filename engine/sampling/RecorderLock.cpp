#include "sampling/RecorderLock.h"

#include "io/Files.h"
#include "text/TextScan.h"

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace vexel {

RecorderLock::RecorderLock(const std::filesystem::path& folder)
    : m_file(folder / "recorder.lock")
{
    try {
        Files::createPrivateFolder(folder);
    } catch (const std::exception& failure) {
        m_error = failure.what();
        return;
    }
    m_fd = ::open(m_file.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0600);
    if (m_fd < 0) {
        m_error = "Couldn't open " + m_file.string() + ": " + std::strerror(errno);
        return;
    }
    (void)take();
}

RecorderLock::~RecorderLock()
{
    if (m_fd >= 0)
        ::close(m_fd);
}

bool RecorderLock::take()
{
    if (m_held || m_fd < 0)
        return m_held;
    if (::flock(m_fd, LOCK_EX | LOCK_NB) != 0) {
        if (errno != EWOULDBLOCK)
            m_error = "Couldn't lock " + m_file.string() + ": " + std::strerror(errno);
        m_holder = TextScan::toI64(TextScan::trim(Files::read(m_file.string(), 64).value_or("")));
        return false;
    }
    m_holder.reset();
    m_error.reset();
    markHeld();
    return true;
}

bool RecorderLock::wait()
{
    if (m_held || m_fd < 0)
        return m_held;
    int locked = 0;
    do
        locked = ::flock(m_fd, LOCK_EX);
    while (locked != 0 && errno == EINTR);
    if (locked != 0)
        return false;
    markHeld();
    return true;
}

void RecorderLock::markHeld()
{
    // A failed write leaves only the pid unsaid: the lock itself holds.
    const std::string pid = std::to_string(::getpid()) + "\n";
    if (::ftruncate(m_fd, 0) == 0)
        (void)!::pwrite(m_fd, pid.data(), pid.size(), 0);
    m_held = true;
}

} // namespace vexel
