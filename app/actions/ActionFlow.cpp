#include "actions/ActionFlow.h"

#include <csignal>

namespace vexel {

namespace {

const ProcRow* mainProcess(const AppGroup& app)
{
    for (const auto& row : app.processes)
        if (app.mainPID && row.pid == *app.mainPID)
            return &row;
    return app.processes.empty() ? nullptr : &app.processes.front();
}

std::string helperSentence(const AppGroup& app)
{
    const size_t helpers = app.processes.size() > 1 ? app.processes.size() - 1 : 0;
    if (helpers == 0)
        return {};
    return " Its " + std::to_string(helpers) + " helper process" + (helpers == 1 ? "" : "es") + " will end with it.";
}

} // namespace

ActionFlow::ActionFlow(ProcessActions& actions, Hooks hooks, uint32_t myUID, int32_t myPid)
    : m_actions(actions)
    , m_hooks(std::move(hooks))
    , m_myUID(myUID)
    , m_myPid(myPid)
{
}

bool ActionFlow::canQuit(const AppGroup& app, uint32_t myUID, int32_t myPid)
{
    const auto* main = mainProcess(app);
    return app.kind == AppKind::app && main != nullptr && main->uid == myUID && main->pid != myPid;
}

void ActionFlow::requestQuit(const AppGroup& app, bool force)
{
    if (!canQuit(app, m_myUID, m_myPid)) {
        m_hooks.toast(app.name + " can't be quit from Vexel.");
        return;
    }
    // The main process first, then its helpers, which a forced quit ends too.
    std::vector<Held> held;
    if (const auto* main = mainProcess(app))
        if (auto process = m_actions.hold(main->pid))
            held.push_back(std::move(process));
    for (const auto& row : app.processes)
        if (force && (held.empty() || row.pid != held.front()->pid()))
            if (auto process = m_actions.hold(row.pid))
                held.push_back(std::move(process));
    if (held.empty()) {
        m_hooks.toast(app.name + " has already quit.");
        return;
    }
    ConfirmRequest request;
    request.title = (force ? "Force quit " : "Quit ") + app.name + "?";
    request.message = force
        ? app.name + " will stop immediately, without a chance to save. Unsaved work in it will be lost."
        : app.name + " will be asked to quit, just like choosing Quit from its menu. It may ask you to save first.";
    request.message += helperSentence(app);
    request.button = force ? "Force Quit" : "Quit";
    request.destructive = force;
    request.confirm = [this, app, held, force] { performQuit(app, held, force); };
    m_hooks.ask(std::move(request));
}

void ActionFlow::performQuit(const AppGroup& app, const std::vector<Held>& processes, bool force)
{
    if (!m_actions.quit(app, processes, force))
        m_hooks.toast(app.name + " didn't respond to Quit.");
    else
        m_hooks.toast(force ? "Force quit " + app.name : "Asked " + app.name + " to quit.");
}

void ActionFlow::requestStop(int32_t pid, const std::string& name, const std::vector<std::string>& context, bool force)
{
    auto process = m_actions.hold(pid);
    if (!process) {
        m_hooks.toast(name + " (process " + std::to_string(pid) + ") has already exited.");
        return;
    }
    askStop(process, name, context, force);
}

void ActionFlow::askStop(
    const Held& process, const std::string& name, const std::vector<std::string>& context, bool force)
{
    const int32_t pid = process->pid();
    ConfirmRequest request;
    request.title = (force ? "Force stop " : "Stop ") + name + "?";
    request.message = force
        ? "Sends SIGKILL to process " + std::to_string(pid) + ". It ends at once and can't clean up."
        : "Sends SIGTERM to process " + std::to_string(pid)
            + ", asking it to shut down cleanly — like pressing Ctrl-C in its terminal.";
    for (const auto& line : context)
        request.message += "\n" + line;
    request.button = force ? "Force Stop" : "Stop";
    request.destructive = force;
    request.confirm = [this, process, name, force] { performStop(process, name, force); };
    m_hooks.ask(std::move(request));
}

void ActionFlow::performStop(const Held& process, const std::string& name, bool force)
{
    const std::string who = name + " (process " + std::to_string(process->pid()) + ")";
    if (!m_actions.signal(*process, force ? SIGKILL : SIGTERM)) {
        m_hooks.toast("Couldn't signal " + who + ". It may have already exited.");
        return;
    }
    m_hooks.toast(force ? "Sent SIGKILL to " + who + "." : "Asked " + who + " to stop.");
    m_hooks.rescanPortsSoon();
    if (force)
        return;
    // A process that ignores SIGTERM is offered the force, never sent it unasked.
    m_hooks.after(forceOfferDelay, [this, process, name] {
        if (m_actions.isAlive(*process))
            askStop(process, name, {name + " is still running after SIGTERM."}, true);
    });
}

} // namespace vexel
