#pragma once

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <cstddef>
#include <mutex>
#include <string>
#include <thread>

namespace vexel {

// Collects what a child process writes to a pipe, on a thread of its own, so
// that the child never blocks on a full pipe while the caller waits with a
// time-out. Reading ends with the pipe, when told to stop, or at the cap.
class PipeReader {
public:
    using Clock = std::chrono::steady_clock;

    // What happens past `cap` bytes: reading stops there (the child then
    // blocks and is ended by its caller), or goes on and drops the rest.
    enum class PastTheCap { stop, drop };

    // Takes ownership of `fd`, the pipe's reading end.
    PipeReader(int fd, size_t cap, PastTheCap pastTheCap);
    ~PipeReader();
    PipeReader(const PipeReader&) = delete;
    PipeReader& operator=(const PipeReader&) = delete;

    // Waits until reading has ended or `deadline` passes; true unless the
    // deadline passed first.
    bool waitUntil(Clock::time_point deadline);

    // Whether more than the cap came.
    [[nodiscard]] bool overflowed();

    // The bytes read (at most the cap).
    [[nodiscard]] std::string takeOutput();

private:
    void drain();

    int m_fd;
    size_t m_cap;
    PastTheCap m_pastTheCap;
    std::atomic<bool> m_stop{false};
    std::mutex m_mutex;
    std::condition_variable m_ended;
    std::string m_output;
    bool m_done = false;
    bool m_overflowed = false;
    std::thread m_thread;
};

} // namespace vexel
