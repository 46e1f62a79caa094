#include "model/Mailbox.h"

#include <QEvent>

#include <thread>

#if defined(__SANITIZE_THREAD__)
extern "C" void AnnotateIgnoreReadsBegin(const char* file, int line);
extern "C" void AnnotateIgnoreReadsEnd(const char* file, int line);
#endif

namespace vexel {

namespace {

// The kind of an event Qt made on the posting thread, read before the wait
// that orders everything else about it; so this one read is kept from
// ThreadSanitizer, which would otherwise see it as a race.
QEvent::Type kindOf(const QEvent* event)
{
#if defined(__SANITIZE_THREAD__)
    AnnotateIgnoreReadsBegin(__FILE__, __LINE__);
    const QEvent::Type kind = event->type();
    AnnotateIgnoreReadsEnd(__FILE__, __LINE__);
    return kind;
#else
    return event->type();
#endif
}

} // namespace

Mailbox::Mailbox(QObject* parent)
    : QObject(parent)
{
}

void Mailbox::post(std::function<void()> call)
{
    QMetaObject::invokeMethod(this, std::move(call), Qt::QueuedConnection);
    m_posted.fetch_add(1, std::memory_order_release);
}

bool Mailbox::event(QEvent* event)
{
    if (kindOf(event) == QEvent::MetaCall) {
        // Calls arrive in the order they were posted: this one's post has
        // returned once the count reaches it.
        ++m_taken;
        while (m_posted.load(std::memory_order_acquire) < m_taken)
            std::this_thread::yield();
    }
    return QObject::event(event);
}

void Finished::set()
{
    const std::lock_guard lock(m_mutex);
    m_done = true;
    m_wake.notify_all();
}

void Finished::wait()
{
    std::unique_lock lock(m_mutex);
    m_wake.wait(lock, [this] { return m_done; });
}

} // namespace vexel
