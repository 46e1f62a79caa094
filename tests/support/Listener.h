#pragma once

#include <cstdint>

namespace vexel::testing {

// A listening TCP socket of this test process on a free port, closed when it goes.
class Listener {
public:
    // `family` is AF_INET or AF_INET6, `address` the numeric address to bind.
    Listener(int family, const char* address);
    ~Listener();
    Listener(const Listener&) = delete;
    Listener& operator=(const Listener&) = delete;

    [[nodiscard]] uint16_t port() const { return m_port; }

private:
    int m_fd = -1;
    uint16_t m_port = 0;
};

} // namespace vexel::testing
