#pragma once

#include "model/Mailbox.h"

#include <QObject>

#include <functional>
#include <memory>
#include <mutex>
#include <thread>

namespace vexel {

// Where a background job's result goes: a mailbox on the receiver's thread,
// a child of the receiver that dies with it. The job posts to it only while
// it lives, and it cannot die while the job posts.
class ReplyBox {
public:
    // Made on the receiver's thread.
    [[nodiscard]] static std::shared_ptr<ReplyBox> of(QObject* receiver);

    // From the job's thread, once: `call` runs on the receiver's thread,
    // unless the receiver is gone; then the box goes.
    void post(std::function<void()> call);

private:
    std::mutex m_mutex;
    Mailbox* m_box = nullptr;
};

// Runs `work` on a thread of its own, then `done` with its result on
// `receiver`'s thread (the caller's); when the receiver is gone by then,
// `done` is dropped. For the slow things a click starts that are not the
// sampler's (a tool that may take seconds to answer, a link to make), so
// that the window never waits for them. `work` must not touch widgets.
template <typename Result>
void inBackground(QObject* receiver, std::function<Result()> work, std::function<void(Result)> done)
{
    auto reply = ReplyBox::of(receiver);
    std::thread([reply, work = std::move(work), done = std::move(done)] {
        auto result = std::make_shared<Result>(work());
        reply->post([done, result] { done(std::move(*result)); });
    }).detach();
}

} // namespace vexel
