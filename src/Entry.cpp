#include "Entry.h"

#include "cli/Arguments.h"
#include "cli/VexelCLI.h"
#include "io/Files.h"
#include "io/Output.h"
#include "mcp/MCPServer.h"

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstring>
#include <unistd.h>

namespace vexel {

namespace {

// One line as one write, as a reader of a pipe wants it; the errno of a failed write.
int writeLine(int fd, const std::string& text)
{
    return Output::writeAll(fd, text + "\n");
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
    // `--data-dir DIR` anywhere reads a history other than the user's own
    // (a system recorder's, in /var/lib/vexel).
    std::vector<std::string> rest = args;
    const auto dataDir = Arguments::takeOption(rest, {"--data-dir"});
    const Dispatch chosen = dispatch(rest);
    if (chosen.role == Role::desktop)
        return desktop(args);
    VexelService service(dataDir ? VexelPaths(*dataDir) : VexelPaths::standard());
    if (chosen.role == Role::mcp) {
        // A client that goes away mid-answer ends the answer, not the server.
        std::signal(SIGPIPE, SIG_IGN);
        MCPServer server(service);
        if (chosen.versionFromProgram)
            server.version = programVersion();
        server.runStdio();
        return 0;
    }
    int failedWrite = 0; // the first
    const int status = VexelCLI::run(
        chosen.rest, service, programVersion(),
        [&](const std::string& line) {
            if (const int failed = writeLine(STDOUT_FILENO, line); failed && !failedWrite)
                failedWrite = failed;
        },
        [](const std::string& line) { (void)writeLine(STDERR_FILENO, line); });
    if (failedWrite == 0)
        return status;
    // A report that never reached its file (a full disk) is a failure, not a success.
    (void)writeLine(STDERR_FILENO, std::string("vexel: couldn't write the output: ") + std::strerror(failedWrite));
    return 1;
}

std::optional<std::string> siblingProgram(const std::optional<std::string>& self, const std::string& name)
{
    if (!self || !self->starts_with('/'))
        return std::nullopt;
    return self->substr(0, self->rfind('/') + 1) + name;
}

int handOver(const std::string& name, const std::vector<std::string>& args)
{
    const auto program = siblingProgram(Files::readLink("/proc/self/exe"), name);
    if (!program) {
        (void)writeLine(
            STDERR_FILENO, "vexel: couldn't tell which folder this program runs from; start " + name + " itself");
        return 1;
    }
    std::vector<char*> argv;
    for (const auto& arg : args)
        argv.push_back(const_cast<char*>(arg.c_str()));
    argv.push_back(nullptr);
    ::execv(program->c_str(), argv.data());
    (void)writeLine(STDERR_FILENO, "vexel: couldn't start " + *program + ": " + std::strerror(errno));
    return 1;
}

} // namespace vexel
