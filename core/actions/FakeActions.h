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
    bool quit(const AppGroup& app, bool force) override;
    bool signal(int32_t pid, int32_t sig) override;
    [[nodiscard]] bool isAlive(int32_t pid) override;
    void reveal(const std::string& path) override;
    void copy(const std::string& text) override;

    std::vector<std::string> log;
    std::set<int32_t> alive;
};

} // namespace vexel
