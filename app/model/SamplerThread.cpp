#include "model/SamplerThread.h"

namespace vexel {

QString SamplerThread::threadName()
{
    return QStringLiteral("dev.vexel.Vexel.sampler");
}

SamplerThread::SamplerThread(std::function<std::unique_ptr<Sampler>()> build)
{
    m_thread.setObjectName(threadName());
    m_context = new QObject;
    m_context->moveToThread(&m_thread);
    QObject::connect(&m_thread, &QThread::finished, m_context, &QObject::deleteLater);
    m_thread.start();
    QMetaObject::invokeMethod(
        m_context, [this, &build] { m_sampler = build(); }, Qt::BlockingQueuedConnection);
}

SamplerThread::~SamplerThread()
{
    // A minute that can't be written is lost: the app is going and has nowhere left to say so.
    run([](Sampler& sampler) { (void)sampler.flush(); });
    QMetaObject::invokeMethod(
        m_context, [this] { m_sampler.reset(); }, Qt::BlockingQueuedConnection);
    m_thread.quit();
    m_thread.wait();
}

void SamplerThread::run(const std::function<void(Sampler&)>& work)
{
    QMetaObject::invokeMethod(
        m_context, [this, &work] { work(*m_sampler); }, Qt::BlockingQueuedConnection);
}

} // namespace vexel
