#include "Entry.h"

#include "ProcessListing.h"

#include "io/Files.h"
#include "monitor/Monitor.h"
#include "system/SnapshotJson.h"
#include "system/linux/LiveSystemReader.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <thread>

namespace vexel {

namespace {

// Until the command line arrives, the CLI role reads the machine twice, one
// second apart so that rates exist, and prints the second snapshot as JSON.
int printSnapshot()
{
    LiveSystemReader reader;
    (void)reader.read(currentTime());
    std::this_thread::sleep_for(std::chrono::seconds(1));
    const auto snapshot = reader.read(currentTime());
    std::puts(toJson(snapshot).dump(2).c_str());
    return 0;
}

} // namespace

Role chooseRole(const std::vector<std::string>& args)
{
    if (std::find(args.begin(), args.end(), "--mcp") != args.end())
        return Role::mcp;
    const std::string name = args.empty() ? std::string() : Files::baseName(args[0]);
    if (name == "vexel" || (args.size() >= 2 && args[1] == "--cli"))
        return Role::cli;
    return Role::desktop;
}

int run(const std::vector<std::string>& args, const DesktopLauncher& desktop)
{
    switch (chooseRole(args)) {
    case Role::desktop: return desktop(args);
    case Role::mcp: std::fputs("vexel: the MCP server is not available in this build yet\n", stderr); return 1;
    case Role::cli: break;
    }
    const bool apps = args.size() > 1 && std::find(args.begin() + 1, args.end(), "apps") != args.end();
    return apps ? printApps() : printSnapshot();
}

} // namespace vexel
