#include "processes/linux/KeptFile.h"

#include <cerrno>
#include <fcntl.h>
#include <unistd.h>
#include <utility>

namespace vexel {

namespace {

ssize_t readFromStart(int fd, std::span<char> buffer)
{
    ssize_t got = 0;
    do
        got = ::pread(fd, buffer.data(), buffer.size(), 0);
    while (got < 0 && errno == EINTR);
    return got;
}

} // namespace

KeptFile::KeptFile(KeptFile&& other) noexcept
    : m_fd(std::exchange(other.m_fd, -1))
    , m_budget(std::exchange(other.m_budget, nullptr))
{
}

KeptFile& KeptFile::operator=(KeptFile&& other) noexcept
{
    if (this != &other) {
        close();
        m_fd = std::exchange(other.m_fd, -1);
        m_budget = std::exchange(other.m_budget, nullptr);
    }
    return *this;
}

void KeptFile::close()
{
    if (m_fd < 0)
        return;
    const int error = errno; // the caller hears why a read failed, not how the close went
    ::close(m_fd);
    errno = error;
    m_fd = -1;
    m_budget->giveBack();
    m_budget = nullptr;
}

std::optional<std::string_view> KeptFile::read(const char* path, std::span<char> buffer, DescriptorBudget& budget)
{
    if (m_fd >= 0) {
        const ssize_t got = readFromStart(m_fd, buffer);
        if (got >= 0)
            return std::string_view(buffer.data(), static_cast<size_t>(got));
        close();
        return std::nullopt;
    }
    // Every descriptor is closed on exec: no tool Vexel starts inherits them.
    const int fd = ::open(path, O_RDONLY | O_CLOEXEC);
    if (fd < 0)
        return std::nullopt;
    const ssize_t got = readFromStart(fd, buffer);
    if (got >= 0 && budget.take()) {
        m_fd = fd;
        m_budget = &budget;
    } else {
        const int error = errno;
        ::close(fd);
        errno = error;
    }
    if (got < 0)
        return std::nullopt;
    return std::string_view(buffer.data(), static_cast<size_t>(got));
}

} // namespace vexel
