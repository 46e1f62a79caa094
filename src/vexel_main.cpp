// The small executable: the command line and the MCP server, without Qt.

#include "Entry.h"

#include <vector>

int main(int argc, char** argv)
{
    // Started under another name, for the desktop, it hands over to
    // vexel-app in its own folder, with the same arguments.
    return vexel::run(std::vector<std::string>(argv, argv + argc),
        [](const std::vector<std::string>& args) { return vexel::handOver("vexel-app", args); });
}
