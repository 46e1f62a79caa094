#include "Entry.h"

#include "cli/VexelCLI.h"
#include "io/Files.h"
#include "io/Output.h"
#include "mcp/MCPServer.h"

#include <algorithm>
#include <csignal>
#include <unistd.h>

namespace vexel {

namespace {

// One line as one write, as a reader of a pipe wants it.
void writeLine(int fd, const std::string& text)
{
    Output::writeAll(fd, text + "\n");
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
    VexelService service(VexelPaths::standard());
    if (chosen.role == Role::mcp) {
        // A client that goes away mid-answer ends the answer, not the server.
        std::signal(SIGPIPE, SIG_IGN);
        MCPServer server(service);
        if (chosen.versionFromProgram)
            server.version = programVersion();
        server.runStdio();
        return 0;
    }
    return VexelCLI::run(
        chosen.rest, service, programVersion(), [](const std::string& line) { writeLine(STDOUT_FILENO, line); },
        [](const std::string& line) { writeLine(STDERR_FILENO, line); });
}

std::optional<std::string> desktopProgram(const std::optional<std::string>& self)
{
    if (!self || !self->starts_with('/'))
        return std::nullopt;
    return self->substr(0, self->rfind('/') + 1) + "vexel-app";
}

} // namespace vexel
