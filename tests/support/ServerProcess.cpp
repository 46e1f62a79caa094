#include "support/ServerProcess.h"

#include <cstdlib>

namespace vexel::testing {

namespace {

// Names itself first, so that the listener is seen under the new name, then
// says its port once it listens.
constexpr const char* script = R"(import ctypes, socket, sys, time
title = sys.argv[1]
if title:
    ctypes.CDLL(None).prctl(15, title.encode(), 0, 0, 0)
s = socket.socket()
s.bind(("127.0.0.1", 0))
s.listen()
print(s.getsockname()[1], flush=True)
while True:
    time.sleep(3600)
)";

} // namespace

ServerProcess::ServerProcess(const std::string& python, const std::filesystem::path& folder, const std::string& title)
    : m_child({python, "-c", script, title}, {folder, true})
{
    m_port = static_cast<uint16_t>(std::atoi(m_child.readLine().c_str()));
}

} // namespace vexel::testing
