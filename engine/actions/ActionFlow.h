#pragma once

#include "actions/ProcessActions.h"
#include "grouping/AppGroup.h"
#include "text/Sentence.h"

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace vexel {

// A question put to the user before anything changes: shown as a sheet, run
// only on confirmation; cancelling it changes nothing.
struct ConfirmRequest {
    Sentence title;
    std::vector<Sentence> message; // one paragraph
    std::vector<Sentence> lines; // under it, a line each (a server's port, its project)
    Sentence button;
    bool destructive = false;
    std::function<void()> confirm;
};

// Quitting apps and stopping processes, each asked first, each ending in a
// toast that says what happened. The flow decides and words; the hooks show
// the sheet and the toast and keep time, so that the same flow runs in the
// window, in the demo world and in tests with a clock of their own.
class ActionFlow {
public:
    // What a toast tells: something done (it leaves by itself), or a
    // failure (it stays until the user closes it).
    enum class Told { done, failed };

    struct Hooks {
        std::function<void(ConfirmRequest)> ask;
        std::function<void(Sentence, Told)> toast;
        std::function<void()> rescanPortsSoon; // about a second after a stop
        std::function<void(double seconds, std::function<void()>)> after;
    };

    // Seconds after an unforced stop before a process still running is offered a forced one.
    static constexpr double forceOfferDelay = 4;

    ActionFlow(ProcessActions& actions, Hooks hooks, uint32_t myUID, int32_t myPid);

    // Only apps, only the user's own, never this program.
    [[nodiscard]] static bool canQuit(const AppGroup& app, uint32_t myUID, int32_t myPid);

    // Whether this user may quit the app from here.
    [[nodiscard]] bool allows(const AppGroup& app) const { return canQuit(app, m_myUID, m_myPid); }
    // Whether this user may stop the process from here: their own, running,
    // and not this program.
    [[nodiscard]] bool allowsStop(const ProcRow& row) const
    {
        return row.uid == m_myUID && row.pid != m_myPid && !row.zombie;
    }
    [[nodiscard]] uint32_t myUID() const { return m_myUID; }

    // Each question holds the processes it is about from the moment it is
    // asked (ProcessActions::hold), and its answer goes to those, however
    // long the sheet stays open; a process that ended before is said so.
    void requestQuit(const AppGroup& app, bool force);
    void performQuit(const AppGroup& app, const std::vector<Held>& processes, bool force);
    // `context` adds lines under the message (a server's port, its project).
    void requestStop(int32_t pid, const std::string& name, const std::vector<Sentence>& context, bool force);
    void performStop(const Held& process, const std::string& name, bool force);

private:
    void askStop(const Held& process, const std::string& name, const std::vector<Sentence>& context, bool force);

    ProcessActions& m_actions;
    Hooks m_hooks;
    uint32_t m_myUID;
    int32_t m_myPid;
};

} // namespace vexel
