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

// The question's words about the app and the helpers that end with it.
std::vector<Sentence> quitMessage(const AppGroup& app, bool force)
{
    std::vector<Sentence> message{force
            ? Sentence{VEXEL_WORDS("vexel::Vexel",
                           "%1 will stop immediately, without a chance to save. Unsaved work in it will be lost."),
                {{app.name}}}
            : Sentence{
                VEXEL_WORDS("vexel::Vexel",
                    "%1 will be asked to quit, just like choosing Quit from its menu. It may ask you to save first."),
                {{app.name}}}};
    if (app.processes.size() > 1)
        message.emplace_back(VEXEL_COUNTED("vexel::Vexel", "Its %n helper process(es) will end with it."),
            std::vector<Sentence::Value>{}, static_cast<int>(app.processes.size() - 1));
    return message;
}

// "node (process 385)"
std::vector<Sentence::Value> who(const std::string& name, int32_t pid)
{
    return {{name}, {std::to_string(pid)}};
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
        m_hooks.toast({VEXEL_WORDS("vexel::Vexel", "%1 can't be quit from Vexel."), {{app.name}}}, Told::failed);
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
        m_hooks.toast({VEXEL_WORDS("vexel::Vexel", "%1 has already quit."), {{app.name}}}, Told::done);
        return;
    }
    ConfirmRequest request;
    request.title = {
        force ? VEXEL_WORDS("vexel::Vexel", "Force quit %1?") : VEXEL_WORDS("vexel::Vexel", "Quit %1?"), {{app.name}}};
    request.message = quitMessage(app, force);
    request.button = {force ? VEXEL_WORDS("vexel::Vexel", "Force Quit") : VEXEL_WORDS("vexel::Vexel", "Quit")};
    request.destructive = force;
    request.confirm = [this, app, held, force] { performQuit(app, held, force); };
    m_hooks.ask(std::move(request));
}

void ActionFlow::performQuit(const AppGroup& app, const std::vector<Held>& processes, bool force)
{
    if (!m_actions.quit(app, processes, force))
        m_hooks.toast({VEXEL_WORDS("vexel::Vexel", "%1 didn't respond to Quit."), {{app.name}}}, Told::failed);
    else
        m_hooks.toast(
            {force ? VEXEL_WORDS("vexel::Vexel", "Force quit %1") : VEXEL_WORDS("vexel::Vexel", "Asked %1 to quit."),
                {{app.name}}},
            Told::done);
}

void ActionFlow::requestStop(int32_t pid, const std::string& name, const std::vector<Sentence>& context, bool force)
{
    auto process = m_actions.hold(pid);
    if (!process) {
        m_hooks.toast({VEXEL_WORDS("vexel::Vexel", "%1 (process %2) has already exited."), who(name, pid)}, Told::done);
        return;
    }
    askStop(process, name, context, force);
}

void ActionFlow::askStop(const Held& process, const std::string& name, const std::vector<Sentence>& context, bool force)
{
    const int32_t pid = process->pid();
    ConfirmRequest request;
    request.title
        = {force ? VEXEL_WORDS("vexel::Vexel", "Force stop %1?") : VEXEL_WORDS("vexel::Vexel", "Stop %1?"), {{name}}};
    request.message = {force
            ? Sentence{VEXEL_WORDS("vexel::Vexel", "Sends SIGKILL to process %1. It ends at once and can't clean up."),
                {{std::to_string(pid)}}}
            : Sentence{VEXEL_WORDS("vexel::Vexel",
                           "Sends SIGTERM to process %1, asking it to shut down cleanly — like pressing Ctrl-C in its "
                           "terminal."),
                {{std::to_string(pid)}}}};
    request.lines = context;
    request.button = {force ? VEXEL_WORDS("vexel::Vexel", "Force Stop") : VEXEL_WORDS("vexel::Vexel", "Stop")};
    request.destructive = force;
    request.confirm = [this, process, name, force] { performStop(process, name, force); };
    m_hooks.ask(std::move(request));
}

void ActionFlow::performStop(const Held& process, const std::string& name, bool force)
{
    const auto named = who(name, process->pid());
    if (!m_actions.signal(*process, force ? SIGKILL : SIGTERM)) {
        m_hooks.toast(
            {VEXEL_WORDS("vexel::Vexel", "Couldn't signal %1 (process %2). It may have already exited."), named},
            Told::failed);
        return;
    }
    m_hooks.toast({force ? VEXEL_WORDS("vexel::Vexel", "Sent SIGKILL to %1 (process %2).")
                         : VEXEL_WORDS("vexel::Vexel", "Asked %1 (process %2) to stop."),
                      named},
        Told::done);
    m_hooks.rescanPortsSoon();
    if (force)
        return;
    // A process that ignores SIGTERM is offered the force, never sent it unasked.
    m_hooks.after(forceOfferDelay, [this, process, name] {
        if (m_actions.isAlive(*process))
            askStop(
                process, name, {{VEXEL_WORDS("vexel::Vexel", "%1 is still running after SIGTERM."), {{name}}}}, true);
    });
}

} // namespace vexel
