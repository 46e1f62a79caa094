#pragma once

#include "monitor/Monitor.h"
#include "settings/VexelPaths.h"

#include <functional>
#include <iosfwd>
#include <memory>

namespace vexel {

// Records history with no window and no panel items, for servers and
// machines reached over SSH: the app's sampler at the settings' cadence, as
// with the window closed, until SIGTERM or SIGINT. Then it writes the minute
// still waiting and saves when it last ran. Only one process records: a
// second one finds the first through the data folder's lock and says so.
class HeadlessRecorder {
public:
    struct Options {
        VexelPaths paths;
        std::function<std::unique_ptr<Monitor>()> makeMonitor;
        std::function<double()> clock; // seconds since the epoch
    };

    explicit HeadlessRecorder(Options options);

    // Runs until a stop signal; the process's exit status. Messages go to `out` and `err`.
    int run(std::ostream& out, std::ostream& err);

private:
    Options m_options;
};

// `vexel-app --headless` on this machine.
int runHeadlessRecorder();

} // namespace vexel
