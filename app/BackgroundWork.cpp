#include "BackgroundWork.h"

namespace vexel {

std::shared_ptr<ReplyBox> ReplyBox::of(QObject* receiver)
{
    auto reply = std::make_shared<ReplyBox>();
    reply->m_box = new Mailbox(receiver);
    QObject::connect(reply->m_box, &QObject::destroyed, [reply] {
        const std::lock_guard lock(reply->m_mutex);
        reply->m_box = nullptr;
    });
    return reply;
}

void ReplyBox::post(std::function<void()> call)
{
    const std::lock_guard lock(m_mutex);
    if (m_box == nullptr)
        return;
    Mailbox* box = m_box;
    box->post([box, call = std::move(call)] {
        call();
        box->deleteLater();
    });
}

} // namespace vexel
