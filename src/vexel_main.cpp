// The small executable: the command line and the MCP server, without Qt.

#include "Entry.h"

#include "io/Files.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <unistd.h>
#include <vector>

namespace {

// Started under another name for the desktop, this program hands over to
// vexel-app in its own folder, with the same arguments.
int handOverToDesktop(const std::vector<std::string>& args)
{
    const auto program = vexel::desktopProgram(vexel::Files::readLink("/proc/self/exe"));
    if (!program) {
        std::fprintf(stderr, "vexel: couldn't tell which folder this program runs from; start vexel-app itself\n");
        return 1;
    }
    const std::string& app = *program;
    std::vector<char*> argv;
    for (const auto& arg : args)
        argv.push_back(const_cast<char*>(arg.c_str()));
    argv.push_back(nullptr);
    ::execv(app.c_str(), argv.data());
    std::fprintf(stderr, "vexel: couldn't start %s: %s\n", app.c_str(), std::strerror(errno));
    return 1;
}

} // namespace

int main(int argc, char** argv)
{
    return vexel::run(std::vector<std::string>(argv, argv + argc), handOverToDesktop);
}
