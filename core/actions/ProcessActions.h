#pragma once

#include "actions/HeldProcess.h"
#include "grouping/AppGroup.h"

#include <cstdint>
#include <string>
#include <vector>

namespace vexel {

// Everything the desktop app may change, behind one interface so that a
// recording fake stands in for it in the demo world.
class ProcessActions {
public:
    virtual ~ProcessActions() = default;

    // Holds a process from now on, for a question about it; nothing when it
    // has already ended.
    [[nodiscard]] virtual Held hold(int32_t pid) = 0;
    // Asks the app to quit (or forces it) through its processes held when
    // the question was asked, its main process first; true when accepted.
    virtual bool quit(const AppGroup& app, const std::vector<Held>& processes, bool force) = 0;
    // Sends a signal to a held process; true on success.
    virtual bool signal(const HeldProcess& process, int32_t sig) = 0;
    [[nodiscard]] virtual bool isAlive(const HeldProcess& process) = 0;
    // Shows the file or folder in the file browser.
    virtual void reveal(const std::string& path) = 0;
    // Puts the text on the clipboard.
    virtual void copy(const std::string& text) = 0;
};

} // namespace vexel
