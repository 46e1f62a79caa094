#include "metrics/MetricsExporter.h"

#include "io/AtomicFile.h"
#include "metrics/MetricsText.h"

namespace vexel {

MetricsExporter::MetricsExporter(std::unique_ptr<MetricsServer> server, std::optional<std::filesystem::path> file,
    std::function<void(const std::string&)> say)
    : m_server(std::move(server))
    , m_file(std::move(file))
    , m_say(std::move(say))
{
}

void MetricsExporter::tookTick(const TickResult& result, const VexelSettings& settings)
{
    m_book.add(result, settings);
    std::string text = metricsText(m_book, MetricsFormat::prometheus);
    if (m_file) {
        std::optional<std::string> failure;
        try {
            AtomicFile::write(*m_file, text, AtomicFile::Keeping{.newFileMode = 0644, .flushed = false});
        } catch (const std::filesystem::filesystem_error& error) {
            failure = error.code().message();
        }
        if (failure && failure != m_fileError)
            m_say("Metrics: couldn't write " + m_file->string() + ": " + *failure);
        m_fileError = failure;
    }
    if (m_server)
        m_server->publish(std::move(text), metricsText(m_book, MetricsFormat::openMetrics));
}

} // namespace vexel
