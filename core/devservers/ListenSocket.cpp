#include "devservers/ListenSocket.h"

namespace vexel {

std::string rawValue(ListenSocket::Family family)
{
    return family == ListenSocket::Family::v6 ? "IPv6" : "IPv4";
}

bool reachableFromNetwork(const ListenSocket& socket)
{
    const std::string& address = socket.address;
    const bool loopback
        = address.rfind("127.", 0) == 0 || address == "::1" || address == "localhost" || address == "::ffff:127.0.0.1";
    return !loopback;
}

} // namespace vexel
