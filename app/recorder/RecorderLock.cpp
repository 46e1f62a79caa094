#include "recorder/RecorderLock.h"

#include "io/Files.h"
#include "text/TextScan.h"

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace vexel {

RecorderLock::RecorderLock(const std::filesystem::path& folder)
{
    try {
        Files::createPrivateFolder(folder);
    } catch (const std::exception& failure) {
        m_error = failure.what();
        return;
    }
    const auto file = folder / "recorder.lock";
    m_fd = ::open(file.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0600);
    if (m_fd < 0) {
        m_error = "Couldn't open " + file.string() + ": " + std::strerror(errno);
        return;
    }
    if (::flock(m_fd, LOCK_EX | LOCK_NB) != 0) {
        if (errno != EWOULDBLOCK)
            m_error = "Couldn't lock " + file.string() + ": " + std::strerror(errno);
        m_holder = TextScan::toI64(TextScan::trim(Files::read(file.string(), 64).value_or("")));
        return;
    }
    m_held = true;
    const std::string pid = std::to_string(::getpid()) + "\n";
    if (::ftruncate(m_fd, 0) != 0 || ::pwrite(m_fd, pid.data(), pid.size(), 0) != static_cast<ssize_t>(pid.size()))
        m_error = "Couldn't write " + file.string() + ": " + std::strerror(errno);
}

RecorderLock::~RecorderLock()
{
    if (m_fd >= 0)
        ::close(m_fd);
}

} // namespace vexel
