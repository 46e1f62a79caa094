#pragma once

#include "metrics/MetricsBook.h"

#include <string>
#include <string_view>

namespace vexel {

// The two spellings of the same metrics: OpenMetrics for Prometheus's
// scrapes (which ask for it), the older Prometheus text for everything else
// (curl, promtool, node_exporter's textfile collector).
enum class MetricsFormat { openMetrics, prometheus };

// The Content-Type that goes with a format.
[[nodiscard]] std::string_view contentType(MetricsFormat format);

// The format a scraper's Accept header asks for.
[[nodiscard]] MetricsFormat formatFor(std::string_view accept);

// Every metric of `book`, in `format`. Labels hold app names, projects'
// folder names, runtimes, ports and kinds, never a process's arguments, a
// path or a user's name.
[[nodiscard]] std::string metricsText(const MetricsBook& book, MetricsFormat format);

} // namespace vexel
