#pragma once

#include "metrics/MetricsBook.h"
#include "metrics/MetricsServer.h"
#include "recording/Recorder.h"

#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>

namespace vexel {

// Turns each tick the recorder takes into metrics: served over HTTP, and
// written to a file for node_exporter's textfile collector. Nothing is read
// for them beyond what the tick read.
class MetricsExporter final : public TickListener {
public:
    // `say` takes a line for the journal (a file that can't be written, said once).
    MetricsExporter(std::unique_ptr<MetricsServer> server, std::optional<std::filesystem::path> file,
        std::function<void(const std::string&)> say);

    void tookTick(const TickResult& result, const VexelSettings& settings) override;

private:
    MetricsBook m_book;
    std::unique_ptr<MetricsServer> m_server;
    std::optional<std::filesystem::path> m_file;
    std::function<void(const std::string&)> m_say;
    std::optional<std::string> m_fileError; // the last failure said
};

} // namespace vexel
