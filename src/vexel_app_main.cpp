// The desktop executable: every role, with the Qt app for the desktop one.

#include "Entry.h"

#include "DesktopApp.h"

#include <vector>

int main(int argc, char** argv)
{
    return vexel::run(std::vector<std::string>(argv, argv + argc),
        [&](const std::vector<std::string>&) { return vexel::runDesktopApp(argc, argv); });
}
