#pragma once

#include "actions/ProcessActions.h"

#include <set>
#include <string>
#include <vector>

namespace vexel {

// Records actions instead of taking them: one line per action in `log`
// ("quit Safari", "forceQuit Safari", "reveal /path", "copy text"); `alive`
// holds the pids that count as running, and a signal takes its pid out.
class FakeActions final : public ProcessActions {
public:
    [[nodiscard]] Held hold(int32_t pid) override;
    bool quit(const AppGroup& app, const std::vector<Held>& processes, bool force) override;
    bool signal(const HeldProcess& process, int32_t sig) override;
    [[nodiscard]] bool isAlive(const HeldProcess& process) override;
    void reveal(const std::string& path) override;
    void copy(const std::string& text) override;

    std::vector<std::string> log;
    std::set<int32_t> alive;
};

} // namespace vexel
