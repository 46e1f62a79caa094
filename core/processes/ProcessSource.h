#pragma once

#include "processes/ProcRecord.h"

#include <optional>
#include <string>
#include <vector>

namespace vexel {

// Where the process table comes from. Used by one sampling thread at a time.
class ProcessSource {
public:
    virtual ~ProcessSource() = default;

    // Every process. Other users' processor time and memory are gathered only
    // when `everyone` is set (it costs more); the user's own always are.
    [[nodiscard]] virtual std::vector<ProcRecord> snapshot(bool everyone) = 0;

    // The process's current working folder; nothing when it cannot be read.
    [[nodiscard]] virtual std::optional<std::string> cwd(int32_t pid) = 0;
};

} // namespace vexel
