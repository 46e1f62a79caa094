#pragma once

#include "processes/ProcRecord.h"

#include <optional>
#include <string>
#include <vector>

namespace vexel {

// Whose processes get their processor time and memory read: the user's own
// only, or everyone's (it costs more).
enum class ProcessScope { own, everyone };

// Where the process table comes from. Used by one sampling thread at a time.
class ProcessSource {
public:
    virtual ~ProcessSource() = default;

    // Every process, with processor time and memory of those in `scope`.
    [[nodiscard]] virtual std::vector<ProcRecord> snapshot(ProcessScope scope) = 0;

    // The process's current working folder; nothing when it cannot be read.
    [[nodiscard]] virtual std::optional<std::string> cwd(int32_t pid) = 0;

    // Whether the system keeps other users' processes out of the list (Linux's
    // /proc mounted with hidepid), so that the list is the user's own only.
    [[nodiscard]] virtual bool othersHidden() const { return false; }
};

} // namespace vexel
