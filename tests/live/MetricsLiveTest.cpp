// The recorder's metrics for real: Debian's own Prometheus scrapes a running
// vexel-recorder and finds an app's CPU counter through its query API;
// promtool finds nothing to fault in the text; the textfile is written; and
// a thousand scrapes leave the recorder's memory where it was.

#include "io/Files.h"
#include "support/ChildProcess.h"
#include "support/HttpGet.h"
#include "support/RunTool.h"
#include "support/TempFolder.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

#include <chrono>
#include <fstream>
#include <thread>

using namespace vexel;
using namespace vexel::testing;

namespace {

// A recorder ticking every second, serving metrics on a port of the kernel's choice.
struct RunningRecorder {
    TempFolder data{"vexel-metrics"};
    std::optional<ChildProcess> process;
    uint16_t port = 0;

    RunningRecorder()
    {
        std::ofstream(data.path() / "settings.json") << R"({"sampleSeconds": 1})";
        const std::string recorder = std::string(VEXEL_BINARY_DIR) + "/src/vexel-recorder";
        process.emplace(std::vector<std::string>{recorder, "--data-dir", data.path().string(), "--metrics",
                            "127.0.0.1:0", "--metrics-file", (data.path() / "vexel.prom").string()},
            ChildProcess::Options{{}, true, true});
        const std::string serving = process->readLine();
        const std::string prefix = "Serving metrics at http://127.0.0.1:";
        EXPECT_TRUE(serving.starts_with(prefix)) << serving;
        if (serving.starts_with(prefix))
            port = static_cast<uint16_t>(std::stoi(serving.substr(prefix.size())));
        EXPECT_EQ(process->readLine(), "Recording to " + (data.path() / "history.sqlite").string() + " every 1 s.");
    }

    // The metrics once the recorder has taken a tick with an interval (its second).
    std::string metrics()
    {
        for (int attempt = 0; attempt < 100; ++attempt) {
            const auto answer = httpRequest(port, "GET", "/metrics");
            if (statusLine(answer) == "HTTP/1.1 200 OK"
                && answer.find("vexel_app_cpu_seconds_total") != std::string::npos
                && body(answer).find("vexel_cpu_seconds_total 0\n") == std::string::npos)
                return body(answer);
            std::this_thread::sleep_for(std::chrono::milliseconds(100));
        }
        return "";
    }
};

uint16_t freePort()
{
    const int fd = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t length = sizeof address;
    (void)::bind(fd, reinterpret_cast<const sockaddr*>(&address), sizeof address);
    (void)::getsockname(fd, reinterpret_cast<sockaddr*>(&address), &length);
    ::close(fd);
    return ntohs(address.sin_port);
}

long residentKilobytes(pid_t pid)
{
    const auto status = Files::read("/proc/" + std::to_string(pid) + "/status", 1 << 16).value_or("");
    const auto at = status.find("VmRSS:");
    return at == std::string::npos ? -1 : std::stol(status.substr(at + 6));
}

} // namespace

TEST(MetricsLive, PrometheusScrapesTheRecorderAndItsMemoryStaysFlat)
{
    // Freed memory goes back to the allocator at once under the sanitizers too.
    const std::string asan = ::getenv("ASAN_OPTIONS") ? ::getenv("ASAN_OPTIONS") : "";
    ::setenv("ASAN_OPTIONS", (asan + ":quarantine_size_mb=0").c_str(), 1);
    RunningRecorder recorder;
    ::setenv("ASAN_OPTIONS", asan.c_str(), 1);
    ASSERT_NE(recorder.port, 0);
    const std::string text = recorder.metrics();
    ASSERT_FALSE(text.empty());
    const auto checked = runTool({"promtool", "check", "metrics"}, {{}, text});
    EXPECT_EQ(checked.status, 0) << checked.out << checked.err;
    EXPECT_EQ(checked.out + checked.err, "");
    const auto textfile = recorder.data.path() / "vexel.prom";
    const auto file = Files::read(textfile.string(), 1 << 20);
    ASSERT_TRUE(file);
    using std::filesystem::perms;
    EXPECT_EQ(std::filesystem::status(textfile).permissions() & perms::all,
        perms::owner_read | perms::owner_write | perms::group_read | perms::others_read)
        << "node_exporter's collector reads it as another user";
    EXPECT_NE(file->find("# TYPE vexel_app_cpu_seconds_total counter"), std::string::npos);

    TempFolder prometheus("vexel-prometheus");
    std::ofstream(prometheus.path() / "prometheus.yml")
        << "global:\n  scrape_interval: 1s\n  scrape_timeout: 1s\nscrape_configs:\n  - job_name: vexel\n"
           "    static_configs:\n      - targets: ['127.0.0.1:"
        << recorder.port << "']\n";
    const uint16_t webPort = freePort();
    ChildProcess server({"prometheus", "--config.file=" + (prometheus.path() / "prometheus.yml").string(),
                            "--storage.tsdb.path=" + (prometheus.path() / "data").string(),
                            "--web.listen-address=127.0.0.1:" + std::to_string(webPort), "--log.level=warn"},
        {prometheus.path(), false, false});
    ASSERT_NE(server.pid(), 0);
    nlohmann::json found;
    for (int attempt = 0; attempt < 240 && (!found.is_array() || found.empty()); ++attempt) {
        std::this_thread::sleep_for(std::chrono::milliseconds(250));
        const auto answer = body(httpRequest(webPort, "GET", "/api/v1/query?query=vexel_app_cpu_seconds_total"));
        const auto parsed = nlohmann::json::parse(answer, nullptr, false);
        if (parsed.is_object() && parsed.value("status", "") == "success")
            found = parsed["data"]["result"];
    }
    ASSERT_TRUE(found.is_array() && !found.empty()) << "Prometheus never stored vexel_app_cpu_seconds_total";
    EXPECT_EQ(found[0]["metric"]["job"], "vexel");
    EXPECT_TRUE(found[0]["metric"].contains("app")) << found.dump();

    // A thousand scrapes more, after the warm-up Prometheus gave it.
    const long before = residentKilobytes(recorder.process->pid());
    for (int scrape = 0; scrape < 1000; ++scrape)
        ASSERT_EQ(statusLine(httpRequest(recorder.port, "GET", "/metrics")), "HTTP/1.1 200 OK") << scrape;
    const long after = residentKilobytes(recorder.process->pid());
    ASSERT_GT(before, 0);
    EXPECT_LT(after - before, 1024) << before << " kB before, " << after << " kB after";
}
