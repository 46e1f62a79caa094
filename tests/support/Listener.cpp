#include "support/Listener.h"

#include <arpa/inet.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

namespace vexel::testing {

Listener::Listener(int family, const char* address)
{
    m_fd = ::socket(family, SOCK_STREAM, 0);
    int on = 1;
    ::setsockopt(m_fd, SOL_SOCKET, SO_REUSEADDR, &on, sizeof on);
    sockaddr_storage where{};
    if (family == AF_INET) {
        auto* v4 = reinterpret_cast<sockaddr_in*>(&where);
        v4->sin_family = AF_INET;
        ::inet_pton(AF_INET, address, &v4->sin_addr);
    } else {
        auto* v6 = reinterpret_cast<sockaddr_in6*>(&where);
        v6->sin6_family = AF_INET6;
        ::inet_pton(AF_INET6, address, &v6->sin6_addr);
    }
    const socklen_t size = family == AF_INET ? sizeof(sockaddr_in) : sizeof(sockaddr_in6);
    ::bind(m_fd, reinterpret_cast<sockaddr*>(&where), size);
    ::listen(m_fd, 4);
    socklen_t bound = sizeof where;
    ::getsockname(m_fd, reinterpret_cast<sockaddr*>(&where), &bound);
    m_port = ntohs(family == AF_INET ? reinterpret_cast<sockaddr_in*>(&where)->sin_port
                                     : reinterpret_cast<sockaddr_in6*>(&where)->sin6_port);
}

Listener::~Listener()
{
    ::close(m_fd);
}

} // namespace vexel::testing
