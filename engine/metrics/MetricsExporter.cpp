#include "metrics/MetricsExporter.h"

#include "io/Output.h"
#include "metrics/MetricsText.h"

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace vexel {

namespace {

// Replaces `file` by renaming a finished copy over it, readable by all (the
// collector runs as another user). Not flushed to disk: the next tick
// rewrites it anyway. The failure in words, or nothing.
std::optional<std::string> replaceFile(const std::filesystem::path& file, const std::string& text)
{
    std::string temporary = file.string() + ".XXXXXX"; // not *.prom: the collector skips it
    const int fd = ::mkstemp(temporary.data());
    if (fd < 0)
        return std::strerror(errno);
    int error = ::fchmod(fd, 0644) == 0 ? 0 : errno;
    if (error == 0)
        error = Output::writeAll(fd, text);
    if (::close(fd) != 0 && error == 0)
        error = errno;
    if (error == 0 && ::rename(temporary.c_str(), file.c_str()) != 0)
        error = errno;
    if (error == 0)
        return std::nullopt;
    ::unlink(temporary.c_str());
    return std::strerror(error);
}

} // namespace

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
        const auto failure = replaceFile(*m_file, text);
        if (failure && failure != m_fileError)
            m_say("Metrics: couldn't write " + m_file->string() + ": " + *failure);
        m_fileError = failure;
    }
    if (m_server)
        m_server->publish(std::move(text), metricsText(m_book, MetricsFormat::openMetrics));
}

} // namespace vexel
