#include "model/SamplerThread.h"

namespace vexel {

QString SamplerThread::threadName()
{
    return QStringLiteral("dev.vexel.Vexel.sampler");
}

SamplerThread::SamplerThread(std::function<std::unique_ptr<Sampler>()> build)
{
    m_thread.setObjectName(threadName());
    m_worker = new Mailbox;
    m_worker->moveToThread(&m_thread);
    QObject::connect(&m_thread, &QThread::finished, m_worker, &QObject::deleteLater);
    m_thread.start();
    onWorker([this, &build] { m_sampler = build(); });
}

SamplerThread::~SamplerThread()
{
    // A minute that can't be written is lost: the app is going and has nowhere left to say so.
    run([](Sampler& sampler) { (void)sampler.flush(); });
    onWorker([this] { m_sampler.reset(); });
    m_thread.quit();
    m_thread.wait();
}

void SamplerThread::run(const std::function<void(Sampler&)>& work)
{
    onWorker([this, &work] { work(*m_sampler); });
}

void SamplerThread::onWorker(const std::function<void()>& work)
{
    Finished finished;
    m_worker->post([&work, &finished] {
        work();
        finished.set();
    });
    finished.wait();
}

} // namespace vexel
