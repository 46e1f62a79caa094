#pragma once

#include "actions/ProcessActions.h"

#include <QObject>

namespace vexel {

// The desktop's own ways of acting on Linux. Linux has no call that asks an
// app to quit as a Mac's Quit menu does; SIGTERM comes closest (GTK, Qt,
// Electron, Chromium and Firefox close cleanly on it and end their helpers).
// Forcing is SIGKILL to every process of the app. Processes are held by a
// pidfd from the question on, and signalled through it. Revealing asks the
// file manager over D-Bus, else opens the folder; neither waits.
class LiveActions final : public ProcessActions {
public:
    [[nodiscard]] Held hold(int32_t pid) override;
    bool quit(const AppGroup& app, const std::vector<Held>& processes, bool force) override;
    bool signal(const HeldProcess& process, int32_t sig) override;
    [[nodiscard]] bool isAlive(const HeldProcess& process) override;
    void reveal(const std::string& path) override;
    void copy(const std::string& text) override;

private:
    QObject m_context; // the answers to reveal's calls come to it, and go with it
};

} // namespace vexel
