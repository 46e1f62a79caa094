#pragma once

#include "model/Sampler.h"

#include <QObject>
#include <QThread>

#include <functional>
#include <memory>

namespace vexel {

// The one worker thread of the desktop app, named after the app id +
// ".sampler". The sampler lives on it: the monitor, the history and the
// activity log are touched there only. Work is posted in order and runs one
// piece at a time; its results come back to the caller's thread.
class SamplerThread {
public:
    // Builds the sampler on the worker thread.
    explicit SamplerThread(std::function<std::unique_ptr<Sampler>()> build);
    // Writes what is still waiting, then stops the thread.
    ~SamplerThread();
    SamplerThread(const SamplerThread&) = delete;
    SamplerThread& operator=(const SamplerThread&) = delete;

    // Runs `work` on the worker; then `done` with its result on `receiver`'s thread.
    template <typename Result>
    void post(std::function<Result(Sampler&)> work, QObject* receiver, std::function<void(Result)> done)
    {
        QMetaObject::invokeMethod(
            m_context,
            [this, work = std::move(work), receiver, done = std::move(done)] {
                auto result = std::make_shared<Result>(work(*m_sampler));
                QMetaObject::invokeMethod(
                    receiver, [done, result] { done(std::move(*result)); }, Qt::QueuedConnection);
            },
            Qt::QueuedConnection);
    }
    // Runs `work` on the worker and waits for it.
    void run(const std::function<void(Sampler&)>& work);

    [[nodiscard]] static QString threadName();

private:
    QThread m_thread;
    QObject* m_context = nullptr; // lives on the worker: posted work runs in its thread
    std::unique_ptr<Sampler> m_sampler;
};

} // namespace vexel
