// The recorder for servers and sessions without a desktop: the engine and
// the core, no Qt.

#include "Entry.h"

#include "recording/Recorder.h"
#include "recording/RecorderArguments.h"

#include <iostream>
#include <vector>

int main(int argc, char** argv)
{
    using namespace vexel;
    const auto args = RecorderArguments::parse(std::vector<std::string>(argv + 1, argv + argc));
    if (args.error) {
        std::cerr << "vexel-recorder: " << *args.error << "\n\n" << recorderUsage() << "\n";
        return 2;
    }
    if (args.help || args.version) {
        std::cout << (args.help ? recorderUsage() : "vexel-recorder " + programVersion()) << "\n";
        return 0;
    }
    Recorder::Options options{args.dataDir ? VexelPaths(*args.dataDir) : VexelPaths::standard(),
        [] { return Monitor::live(); }, currentTime, {}};
    Recorder recorder(std::move(options));
    return recorder.run(std::cout, std::cerr);
}
