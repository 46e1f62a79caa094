#pragma once

#include "grouping/AppGroup.h"

#include <cstdint>
#include <string>

namespace vexel {

// Everything the desktop app may change, behind one interface so that a
// recording fake stands in for it in the demo world.
class ProcessActions {
public:
    virtual ~ProcessActions() = default;

    // Asks the app to quit (or forces it); true when the request was accepted.
    virtual bool quit(const AppGroup& app, bool force) = 0;
    // Sends a signal; true on success.
    virtual bool signal(int32_t pid, int32_t sig) = 0;
    [[nodiscard]] virtual bool isAlive(int32_t pid) = 0;
    // Shows the file or folder in the file browser.
    virtual void reveal(const std::string& path) = 0;
    // Puts the text on the clipboard.
    virtual void copy(const std::string& text) = 0;
};

} // namespace vexel
