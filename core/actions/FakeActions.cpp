#include "actions/FakeActions.h"

namespace vexel {

Held FakeActions::hold(int32_t pid)
{
    return std::make_shared<const HeldProcess>(pid);
}

bool FakeActions::quit(const AppGroup& app, const std::vector<Held>&, bool force)
{
    log.push_back((force ? "forceQuit " : "quit ") + app.name);
    return true;
}

bool FakeActions::signal(const HeldProcess& process, int32_t)
{
    return alive.erase(process.pid()) > 0;
}

bool FakeActions::isAlive(const HeldProcess& process)
{
    return alive.contains(process.pid());
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
