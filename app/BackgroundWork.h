#pragma once

#include <QFuture>
#include <QObject>
#include <QPromise>
#include <QThreadPool>

#include <exception>
#include <functional>
#include <memory>

namespace vexel {

// Runs `work` on Qt's thread pool, then `done` with its result on
// `receiver`'s thread; when the receiver is gone by then, `done` is dropped.
// For the slow things a click starts that are not the sampler's (a tool
// that may take seconds to answer, a link to make), so that the window never
// waits for them. `work` must not touch widgets.
template <typename Result>
void inBackground(QObject* receiver, std::function<Result()> work, std::function<void(Result)> done)
{
    auto promise = std::make_shared<QPromise<Result>>();
    promise->future().then(receiver, [done = std::move(done)](Result result) { done(std::move(result)); });
    promise->start();
    QThreadPool::globalInstance()->start([promise, work = std::move(work)] {
        try {
            promise->addResult(work());
        } catch (...) {
            promise->setException(std::current_exception()); // `done` is not called
        }
        promise->finish();
    });
}

} // namespace vexel
