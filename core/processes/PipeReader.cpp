#include "processes/PipeReader.h"

#include <algorithm>
#include <cerrno>
#include <poll.h>
#include <pthread.h>
#include <unistd.h>

namespace vexel {

PipeReader::PipeReader(int fd, size_t cap, PastTheCap pastTheCap)
    : m_fd(fd)
    , m_cap(cap)
    , m_pastTheCap(pastTheCap)
    , m_thread([this] { drain(); })
{
}

PipeReader::~PipeReader()
{
    m_stop = true;
    m_thread.join();
    ::close(m_fd);
}

bool PipeReader::waitUntil(Clock::time_point deadline)
{
    std::unique_lock lock(m_mutex);
    return m_ended.wait_until(lock, deadline, [this] { return m_done; });
}

bool PipeReader::overflowed()
{
    std::lock_guard lock(m_mutex);
    return m_overflowed;
}

std::string PipeReader::takeOutput()
{
    std::lock_guard lock(m_mutex);
    return std::move(m_output);
}

void PipeReader::drain()
{
    ::pthread_setname_np(::pthread_self(), "vexel.shell.read");
    char buffer[16384];
    while (!m_stop) {
        // A short poll, so that a stop request is seen even while the child is silent.
        pollfd ready{m_fd, POLLIN, 0};
        const int polled = ::poll(&ready, 1, 50);
        if (polled < 0 && errno != EINTR)
            break;
        if (polled <= 0)
            continue;
        const ssize_t got = ::read(m_fd, buffer, sizeof buffer);
        if (got < 0 && errno == EINTR)
            continue;
        if (got <= 0)
            break;
        std::lock_guard lock(m_mutex);
        const auto count = static_cast<size_t>(got);
        if (m_output.size() + count > m_cap) {
            m_overflowed = true;
            if (m_pastTheCap == PastTheCap::stop)
                break;
            m_output.append(buffer, m_cap - m_output.size());
            continue;
        }
        m_output.append(buffer, count);
    }
    std::lock_guard lock(m_mutex);
    m_done = true;
    m_ended.notify_all();
}

} // namespace vexel
