#pragma once

#include "monitor/Monitor.h"
#include "sampling/TickResult.h"
#include "settings/VexelPaths.h"
#include "settings/VexelSettings.h"

#include <functional>
#include <iosfwd>
#include <memory>
#include <vector>

namespace vexel {

// Something fed every tick the recorder takes: the metrics it serves and
// the file it writes for node_exporter.
class TickListener {
public:
    virtual ~TickListener() = default;
    virtual void tookTick(const TickResult& result, const VexelSettings& settings) = 0;
};

// Records history with no window and no panel items, for servers and
// machines reached over SSH: the sampler at the settings' cadence, as with
// the window closed, until SIGTERM, SIGINT or SIGHUP. Then it writes the
// minute still waiting and saves when it last ran. Only one process records:
// while another holds the data folder's lock (the window, another recorder),
// this one says so once and waits for it, so that the two take turns.
class Recorder {
public:
    struct Options {
        VexelPaths paths;
        std::function<std::unique_ptr<Monitor>()> makeMonitor;
        std::function<double()> clock; // seconds since the epoch
        std::vector<TickListener*> listeners;
    };

    explicit Recorder(Options options);

    // Runs until a stop signal; the process's exit status. Messages go to `out` and `err`.
    int run(std::ostream& out, std::ostream& err);

private:
    int record(std::ostream& out, std::ostream& err, const sigset_t& signals);

    Options m_options;
};

} // namespace vexel
