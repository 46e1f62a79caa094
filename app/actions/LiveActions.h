#pragma once

#include "actions/ProcessActions.h"

namespace vexel {

// The desktop's own ways of acting on Linux. Linux has no call that asks an
// app to quit as a Mac's Quit menu does; SIGTERM comes closest (GTK, Qt,
// Electron, Chromium and Firefox close cleanly on it and end their helpers).
// Forcing is SIGKILL to every process of the app. Revealing asks the file
// manager over D-Bus, else opens the folder.
class LiveActions final : public ProcessActions {
public:
    bool quit(const AppGroup& app, bool force) override;
    bool signal(int32_t pid, int32_t sig) override;
    [[nodiscard]] bool isAlive(int32_t pid) override;
    void reveal(const std::string& path) override;
    void copy(const std::string& text) override;
};

} // namespace vexel
