#include "Entry.h"

#include "cli/VexelCLI.h"
#include "io/Files.h"
#include "mcp/MCPServer.h"

#include <algorithm>
#include <cstdio>

namespace vexel {

namespace {

VexelService standardService()
{
    return VexelService(VexelPaths::standard());
}

void writeLine(std::FILE* stream, const std::string& text)
{
    const std::string line = text + "\n";
    std::fwrite(line.data(), 1, line.size(), stream);
    std::fflush(stream);
}

} // namespace

std::string programVersion()
{
    const std::string built = VEXEL_VERSION; // from the build
    return built.empty() ? "1.0" : built;
}

Dispatch dispatch(const std::vector<std::string>& args)
{
    if (std::find(args.begin(), args.end(), "--mcp") != args.end())
        return {Role::mcp, {}, true};
    const std::string name = args.empty() ? std::string() : Files::baseName(args[0]);
    if (name != "vexel" && !(args.size() >= 2 && args[1] == "--cli"))
        return {Role::desktop, {}, false};
    std::vector<std::string> rest(args.begin() + 1, args.end());
    if (!rest.empty() && rest.front() == "--cli")
        rest.erase(rest.begin());
    if (!rest.empty() && rest.front() == "mcp")
        return {Role::mcp, {}, false};
    return {Role::cli, rest, false};
}

int run(const std::vector<std::string>& args, const DesktopLauncher& desktop)
{
    const Dispatch chosen = dispatch(args);
    if (chosen.role == Role::desktop)
        return desktop(args);
    VexelService service = standardService();
    if (chosen.role == Role::mcp) {
        MCPServer server(service);
        if (chosen.versionFromProgram)
            server.version = programVersion();
        server.runStdio();
        return 0;
    }
    return VexelCLI::run(
        chosen.rest, service, programVersion(), [](const std::string& line) { writeLine(stdout, line); },
        [](const std::string& line) { writeLine(stderr, line); });
}

} // namespace vexel
