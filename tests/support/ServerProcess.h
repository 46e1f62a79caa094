#pragma once

#include "support/ChildProcess.h"

#include <cstdint>
#include <filesystem>
#include <string>

namespace vexel::testing {

// A program that listens on a free loopback TCP port until it is stopped: a
// python interpreter (`python`, found on PATH or a copy elsewhere) running in
// `folder`, under the process name `title` when one is given. Node's and
// setproctitle's titles set the same kernel name, cut to 15 characters.
class ServerProcess {
public:
    ServerProcess(const std::string& python, const std::filesystem::path& folder, const std::string& title = "");

    [[nodiscard]] pid_t pid() const { return m_child.pid(); }
    // 0 when the program did not come to listen.
    [[nodiscard]] uint16_t port() const { return m_port; }

private:
    ChildProcess m_child;
    uint16_t m_port = 0;
};

} // namespace vexel::testing
