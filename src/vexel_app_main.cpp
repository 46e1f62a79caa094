// The desktop executable: every role, with the Qt app for the desktop one.

#include "Entry.h"

#include "DesktopApp.h"

#include <algorithm>
#include <vector>

int main(int argc, char** argv)
{
    const std::vector<std::string> args(argv, argv + argc);
    // Recording without a desktop is vexel-recorder's, which has no Qt at all.
    if (std::find(args.begin() + 1, args.end(), "--headless") != args.end()) {
        std::vector<std::string> recorder{"vexel-recorder"};
        std::copy_if(args.begin() + 1, args.end(), std::back_inserter(recorder),
            [](const std::string& arg) { return arg != "--headless"; });
        return vexel::handOver("vexel-recorder", recorder);
    }
    return vexel::run(args, [&](const std::vector<std::string>&) { return vexel::runDesktopApp(argc, argv); });
}
