#include "support/HttpGet.h"

#include <arpa/inet.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

namespace vexel::testing {

int connectTo(uint16_t port)
{
    const int fd = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_port = htons(port);
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    if (::connect(fd, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0)
        return fd;
    ::close(fd);
    return -1;
}

std::string httpRequest(uint16_t port, const std::string& method, const std::string& path, const std::string& headers)
{
    const int fd = connectTo(port);
    if (fd < 0)
        return "";
    const std::string request
        = method + " " + path + " HTTP/1.1\r\nHost: localhost\r\nConnection: close\r\n" + headers + "\r\n";
    (void)!::write(fd, request.data(), request.size());
    std::string answer;
    char buffer[16384];
    for (ssize_t got = 0; (got = ::read(fd, buffer, sizeof buffer)) > 0;)
        answer.append(buffer, static_cast<size_t>(got));
    ::close(fd);
    return answer;
}

std::string statusLine(const std::string& answer)
{
    return answer.substr(0, answer.find("\r\n"));
}

std::string body(const std::string& answer)
{
    const auto end = answer.find("\r\n\r\n");
    return end == std::string::npos ? "" : answer.substr(end + 4);
}

} // namespace vexel::testing
