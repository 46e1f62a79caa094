#pragma once

#include "devservers/ListenSocket.h"

#include <optional>
#include <vector>

namespace vexel {

// Where the listening sockets come from.
class PortSource {
public:
    virtual ~PortSource() = default;

    // Every listening TCP socket with a visible owner; nothing when the
    // sockets could not be read at all (an empty list means nothing listens).
    [[nodiscard]] virtual std::optional<std::vector<ListenSocket>> listeners() = 0;
};

} // namespace vexel
