#pragma once

#include <QObject>

#include <atomic>
#include <condition_variable>
#include <cstdint>
#include <functional>
#include <mutex>

namespace vexel {

// Runs calls posted from another thread on the thread it lives in, one at a
// time, in the order they were posted; one thread posts to a mailbox.
//
// Why not a plain queued call: Qt orders the two threads with locks of its
// own, which ThreadSanitizer cannot see (Debian's Qt is not built for it), so
// every call handed over would read as a race. The mailbox counts each post
// once it has returned (Qt's copy of the call made), and before Qt runs a
// call it waits for that count, which in practice is there already. It works
// the same in every build, so that what the sanitizer checks is what ships.
class Mailbox final : public QObject {
public:
    explicit Mailbox(QObject* parent = nullptr);

    void post(std::function<void()> call);

protected:
    bool event(QEvent* event) override;

private:
    std::atomic<uint64_t> m_posted{0};
    uint64_t m_taken = 0; // touched by the mailbox's thread only
};

// The end of a piece of work that the thread that posted it waits for.
class Finished {
public:
    void set();
    void wait();

private:
    std::mutex m_mutex;
    std::condition_variable m_wake;
    bool m_done = false;
};

} // namespace vexel
