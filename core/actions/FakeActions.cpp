#include "actions/FakeActions.h"

namespace vexel {

bool FakeActions::quit(const AppGroup& app, bool force)
{
    log.push_back((force ? "forceQuit " : "quit ") + app.name);
    return true;
}

bool FakeActions::signal(int32_t pid, int32_t)
{
    return alive.erase(pid) > 0;
}

bool FakeActions::isAlive(int32_t pid)
{
    return alive.contains(pid);
}

void FakeActions::reveal(const std::string& path)
{
    log.push_back("reveal " + path);
}

void FakeActions::copy(const std::string& text)
{
    log.push_back("copy " + text);
}

} // namespace vexel
