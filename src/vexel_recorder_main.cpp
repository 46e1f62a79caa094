// The recorder for servers and sessions without a desktop: the engine and
// the core, no Qt.

#include "Entry.h"

#include "io/Files.h"
#include "metrics/MetricsExporter.h"
#include "recording/Recorder.h"
#include "recording/RecorderArguments.h"
#include "text/TextScan.h"

#include <csignal>
#include <iostream>
#include <vector>

namespace {

using namespace vexel;

// The metrics' server and file as the command line asks; nothing, with the
// reason said, when they cannot be had.
std::optional<std::unique_ptr<MetricsExporter>> metricsOf(const RecorderArguments& args)
{
    std::unique_ptr<MetricsServer> server;
    if (args.metrics) {
        std::string error;
        const auto address = MetricsAddress::parse(*args.metrics, error);
        std::optional<std::string> token;
        if (address && args.metricsTokenFile) {
            const auto read = Files::read(*args.metricsTokenFile, 4096);
            if (read && !TextScan::trim(*read).empty())
                token = std::string(TextScan::trim(*read));
            else
                error = "couldn't read a token in " + *args.metricsTokenFile;
        }
        if (address && error.empty())
            server = MetricsServer::start(*address, token, error);
        if (!server) {
            std::cerr << "vexel-recorder: " << error << "\n";
            return std::nullopt;
        }
        std::cout << "Serving metrics at http://" << (address->ipv6 ? "[" + address->host + "]" : address->host) << ":"
                  << server->port() << "/metrics\n"
                  << std::flush;
    }
    if (!server && !args.metricsFile)
        return std::unique_ptr<MetricsExporter>();
    std::optional<std::filesystem::path> file;
    if (args.metricsFile)
        file = *args.metricsFile;
    return std::make_unique<MetricsExporter>(std::move(server), file, [](const std::string& line) {
        std::cerr << line << "\n" << std::flush;
    });
}

} // namespace

int main(int argc, char** argv)
{
    const auto args = RecorderArguments::parse(std::vector<std::string>(argv + 1, argv + argc));
    if (args.error) {
        std::cerr << "vexel-recorder: " << *args.error << "\n\n" << recorderUsage() << "\n";
        return 2;
    }
    if (args.help || args.version) {
        std::cout << (args.help ? recorderUsage() : "vexel-recorder " + programVersion()) << "\n";
        return 0;
    }
    // A scraper that hangs up mid-answer must not end the recorder.
    std::signal(SIGPIPE, SIG_IGN);
    auto metrics = metricsOf(args);
    if (!metrics)
        return 1;
    Recorder::Options options{args.dataDir ? VexelPaths(*args.dataDir) : VexelPaths::standard(),
        [] { return Monitor::live(); }, currentTime, {}};
    if (*metrics)
        options.listeners.push_back(metrics->get());
    Recorder recorder(std::move(options));
    return recorder.run(std::cout, std::cerr);
}
