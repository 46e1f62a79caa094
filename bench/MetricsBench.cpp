// The recorder's metrics at about 500 processes: what a tick adds to turn
// its frame into both texts, and what one scrape of /metrics costs the
// process (the server's thread and the scraper's request together, since
// both run here).

#include "IdleChildren.h"
#include "metrics/MetricsBook.h"
#include "metrics/MetricsServer.h"
#include "metrics/MetricsText.h"
#include "monitor/Monitor.h"
#include "support/HttpGet.h"

#include <benchmark/benchmark.h>

namespace {

vexel::TickResult liveTick()
{
    IdleChildren::ensure(500);
    auto monitor = vexel::Monitor::live();
    double now = vexel::currentTime();
    (void)monitor->sample(now, {.everyone = true, .network = true});
    vexel::TickResult result;
    result.frame = monitor->sample(now + 5, {.everyone = true, .network = true});
    return result;
}

void BM_Metrics_TickToTexts(benchmark::State& state)
{
    const auto tick = liveTick();
    vexel::MetricsBook book;
    const vexel::VexelSettings settings;
    for (auto _ : state) {
        book.add(tick, settings);
        benchmark::DoNotOptimize(vexel::metricsText(book, vexel::MetricsFormat::prometheus));
        benchmark::DoNotOptimize(vexel::metricsText(book, vexel::MetricsFormat::openMetrics));
    }
    state.counters["processes"] = static_cast<double>(tick.frame.records.size());
}
BENCHMARK(BM_Metrics_TickToTexts)->MeasureProcessCPUTime()->Unit(benchmark::kMicrosecond);

void BM_Metrics_OneScrape(benchmark::State& state)
{
    const auto tick = liveTick();
    vexel::MetricsBook book;
    book.add(tick, {});
    std::string error;
    const auto server
        = vexel::MetricsServer::start(*vexel::MetricsAddress::parse("127.0.0.1:0", error), std::nullopt, error);
    server->publish(vexel::metricsText(book, vexel::MetricsFormat::prometheus),
        vexel::metricsText(book, vexel::MetricsFormat::openMetrics));
    size_t bytes = 0;
    for (auto _ : state)
        bytes = vexel::testing::httpRequest(server->port(), "GET", "/metrics").size();
    state.counters["bytes"] = static_cast<double>(bytes);
    state.counters["processes"] = static_cast<double>(tick.frame.records.size());
}
BENCHMARK(BM_Metrics_OneScrape)->MeasureProcessCPUTime()->Unit(benchmark::kMicrosecond);

} // namespace
