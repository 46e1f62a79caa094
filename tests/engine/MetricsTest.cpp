// The metrics the recorder serves: what they say of the demo world, counters
// that never go back, and the HTTP server's answers to scrapers good and bad.

#include "metrics/MetricsBook.h"
#include "metrics/MetricsServer.h"
#include "metrics/MetricsText.h"
#include "sampling/Sampler.h"
#include "support/Golden.h"
#include "support/HttpGet.h"
#include "support/TempFolder.h"
#include "synth/DemoWorld.h"

#include <gtest/gtest.h>

#include <unistd.h>

#include <chrono>
#include <map>

using namespace vexel;
using vexel::testing::statusLine;

namespace {

std::string get(uint16_t port, const std::string& method, const std::string& path, const std::string& headers = "")
{
    return vexel::testing::httpRequest(port, method, path, headers);
}

AppGroup app(const std::string& name, double cpu)
{
    AppGroup group;
    group.name = name;
    group.cpu = cpu;
    group.processes.resize(1);
    return group;
}

TickResult tickWith(double time, std::vector<AppGroup> apps)
{
    TickResult result;
    result.frame.time = time;
    result.frame.interval = 10;
    result.frame.system = SystemSnapshot::empty(time);
    result.frame.apps = std::move(apps);
    return result;
}

} // namespace

// Three ticks of the demo world, with its dev servers: every family once,
// in base units, as the golden file shows it in both spellings.
TEST(Metrics, TheDemoWorldInBothFormats)
{
    const vexel::testing::TempFolder folder("vexel-metrics");
    DemoWorld world;
    Sampler sampler(world.monitor(), nullptr, VexelPaths(folder.path()));
    sampler.beforeSample = [&world](double now) { world.advance(now - world.now()); };
    MetricsBook book;
    VexelSettings settings;
    settings.metricsApps = 5;
    for (int tick = 0; tick < 3; ++tick)
        book.add(sampler.tick(world.now() + 5, {.everyone = true, .network = true, .ports = true}), settings);
    const std::string text = metricsText(book, MetricsFormat::prometheus);
    EXPECT_EQ(vexel::testing::compareGolden("metrics/demo.prom", text), "");
    EXPECT_EQ(
        vexel::testing::compareGolden("metrics/demo.openmetrics", metricsText(book, MetricsFormat::openMetrics)), "");
    EXPECT_NE(text.find("vexel_dev_server_info{project="), std::string::npos) << "the demo world's servers";
}

// With room for one app, the busiest of each tick has its own series and the
// rest go to "other": every series only grows, and together they add up to
// every app's CPU time. Names become valid label values.
TEST(Metrics, AppCountersOnlyGrowWhateverTheTopApps)
{
    MetricsBook book;
    VexelSettings settings;
    settings.metricsApps = 1;
    std::map<std::string, double> last;
    double total = 0;
    const std::vector<std::pair<double, double>> loads{{2, 1}, {1, 3}, {0.5, 0.25}, {0, 4}};
    for (size_t i = 0; i < loads.size(); ++i) {
        book.add(tickWith(1000 + 10.0 * static_cast<double>(i),
                     {app("Builder", loads[i].first), app("Editor \"nightly\"\n\\\xff", loads[i].second)}),
            settings);
        total += (loads[i].first + loads[i].second) * 10;
        double sum = 0;
        for (const auto& shown : book.apps()) {
            EXPECT_GE(shown.counts.cpuSeconds, last[shown.name]) << shown.name << " went back at tick " << i;
            last[shown.name] = shown.counts.cpuSeconds;
        }
        for (const auto& [name, seconds] : last)
            sum += seconds;
        EXPECT_DOUBLE_EQ(sum, total) << "at tick " << i;
        ASSERT_EQ(book.apps().size(), 2U);
        EXPECT_EQ(book.apps().back().name, "other");
    }
    const std::string text = metricsText(book, MetricsFormat::prometheus);
    EXPECT_NE(text.find(R"(vexel_app_cpu_seconds_total{app="Editor \"nightly\"\n\\?"} 70)"), std::string::npos) << text;
    EXPECT_NE(text.find(R"(vexel_app_cpu_seconds_total{app="other"} 22.5)"), std::string::npos) << text;
    EXPECT_EQ(text.find("Builder"), std::string::npos) << "not among the top this tick";
}

// GET and HEAD on /metrics, in the format asked for; 404 and 405 elsewhere;
// 503 until the first tick; and off loopback nothing without the token.
TEST(MetricsServer, AnswersOnlyWhatItServes)
{
    std::string error;
    EXPECT_FALSE(MetricsAddress::parse("localhost:9649", error));
    EXPECT_FALSE(MetricsAddress::parse("127.0.0.1", error));
    EXPECT_TRUE(MetricsAddress::parse("[::1]:9649", error)->loopback);
    const auto anywhere = MetricsAddress::parse("0.0.0.0:0", error);
    ASSERT_TRUE(anywhere);
    EXPECT_FALSE(anywhere->loopback);
    EXPECT_FALSE(MetricsServer::start(*anywhere, std::nullopt, error));
    EXPECT_EQ(error, "0.0.0.0 can be reached from other machines: give --metrics-token-file too");

    const auto server = MetricsServer::start(*MetricsAddress::parse("127.0.0.1:0", error), std::nullopt, error);
    ASSERT_TRUE(server) << error;
    const uint16_t port = server->port();
    EXPECT_EQ(statusLine(get(port, "GET", "/metrics")), "HTTP/1.1 503 Service Unavailable");
    server->publish("plain 1\n", "open 1\n# EOF\n");
    const auto plain = get(port, "GET", "/metrics");
    EXPECT_EQ(statusLine(plain), "HTTP/1.1 200 OK");
    EXPECT_NE(plain.find("Content-Type: text/plain; version=0.0.4; charset=utf-8"), std::string::npos) << plain;
    EXPECT_TRUE(plain.ends_with("\r\n\r\nplain 1\n")) << plain;
    const auto open = get(port, "GET", "/metrics", "Accept: application/openmetrics-text;version=1.0.0,*/*;q=0.1\r\n");
    EXPECT_TRUE(open.ends_with("\r\n\r\nopen 1\n# EOF\n")) << open;
    const auto head = get(port, "HEAD", "/metrics");
    EXPECT_EQ(statusLine(head), "HTTP/1.1 200 OK");
    EXPECT_TRUE(head.ends_with("\r\n\r\n")) << "no body: " << head;
    EXPECT_EQ(statusLine(get(port, "GET", "/")), "HTTP/1.1 404 Not Found");
    const auto posted = get(port, "POST", "/metrics", "Content-Length: 3\r\n\r\nabc");
    EXPECT_EQ(statusLine(posted), "HTTP/1.1 405 Method Not Allowed");
    EXPECT_NE(posted.find("Allow: GET, HEAD"), std::string::npos) << posted;
    const auto huge = get(port, "GET", "/metrics", "X-Padding: " + std::string(64 * 1024, 'a') + "\r\n");
    EXPECT_TRUE(huge.empty() || statusLine(huge).find(" 200 ") == std::string::npos) << statusLine(huge);

    const auto guarded = MetricsServer::start(*MetricsAddress::parse("0.0.0.0:0", error), "s3cret", error);
    ASSERT_TRUE(guarded) << error;
    guarded->publish("plain 2\n", "open 2\n# EOF\n");
    const uint16_t guardedPort = guarded->port();
    for (const char* wrong : {"", "Authorization: Bearer s3cre\r\n", "Authorization: Basic s3cret\r\n"}) {
        const auto refused = get(guardedPort, "GET", "/metrics", wrong);
        EXPECT_EQ(statusLine(refused), "HTTP/1.1 401 Unauthorized") << wrong;
        EXPECT_EQ(refused.find("plain 2"), std::string::npos);
    }
    EXPECT_TRUE(get(guardedPort, "GET", "/metrics", "Authorization: Bearer s3cret\r\n").ends_with("plain 2\n"));
}

// Clients that connect and never finish their request hold a connection
// each, never the recorder: new texts go in at once, and a good scraper is
// still answered.
TEST(MetricsServer, HalfOpenClientsHoldUpNeitherTicksNorScrapes)
{
    std::string error;
    const auto server = MetricsServer::start(*MetricsAddress::parse("127.0.0.1:0", error), std::nullopt, error);
    ASSERT_TRUE(server) << error;
    std::vector<int> stalled;
    for (int i = 0; i < 4; ++i) {
        const int fd = vexel::testing::connectTo(server->port());
        ASSERT_GE(fd, 0);
        (void)!::write(fd, "GET /metr", 9);
        stalled.push_back(fd);
    }
    for (int tick = 0; tick < 50; ++tick) {
        const auto started = std::chrono::steady_clock::now();
        server->publish("tick " + std::to_string(tick) + "\n", "");
        EXPECT_LT(std::chrono::steady_clock::now() - started, std::chrono::milliseconds(100));
    }
    EXPECT_TRUE(get(server->port(), "GET", "/metrics").ends_with("tick 49\n"));
    for (const int fd : stalled)
        ::close(fd);
}
