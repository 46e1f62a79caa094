#pragma once

#include "model/Mailbox.h"
#include "sampling/Sampler.h"

#include <QObject>
#include <QThread>

#include <functional>
#include <memory>

namespace vexel {

// The one worker thread of the desktop app, named after the app id +
// ".sampler". The sampler lives on it: the monitor, the history and the
// activity log are touched there only. Work is posted in order and runs one
// piece at a time; its results come back to the thread that made this one,
// while this lives.
class SamplerThread {
public:
    // Builds the sampler on the worker thread.
    explicit SamplerThread(std::function<std::unique_ptr<Sampler>()> build);
    // Writes what is still waiting, then stops the thread; results not yet
    // back are dropped.
    ~SamplerThread();
    SamplerThread(const SamplerThread&) = delete;
    SamplerThread& operator=(const SamplerThread&) = delete;

    // Runs `work` on the worker; then `done` with its result on this object's thread.
    template <typename Result> void post(std::function<Result(Sampler&)> work, std::function<void(Result)> done)
    {
        m_worker->post([this, work = std::move(work), done = std::move(done)] {
            auto result = std::make_shared<Result>(work(*m_sampler));
            m_replies.post([done, result] { done(std::move(*result)); });
        });
    }
    // Runs `work` on the worker and waits for it.
    void run(const std::function<void(Sampler&)>& work);

    [[nodiscard]] static QString threadName();

private:
    // Runs `work` on the worker and waits for it.
    void onWorker(const std::function<void()>& work);

    QThread m_thread;
    Mailbox* m_worker = nullptr; // lives on the worker: posted work runs in its thread
    Mailbox m_replies; // lives here: results come back through it
    std::unique_ptr<Sampler> m_sampler;
};

} // namespace vexel
