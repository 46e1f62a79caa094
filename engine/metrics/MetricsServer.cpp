#include "metrics/MetricsServer.h"

#include "metrics/MetricsText.h"
#include "text/TextScan.h"

#include <arpa/inet.h>
#include <microhttpd.h>
#include <netinet/in.h>

#include <cstring>

namespace vexel {

namespace {

// Bounds: scrapers at once, and from one address; the memory each may use
// (its request's headers must fit); seconds a connection may stay idle.
constexpr unsigned connectionLimit = 16;
constexpr unsigned perAddressLimit = 8;
constexpr size_t connectionMemory = 16 * 1024;
constexpr unsigned idleSeconds = 10;

// Queues `text` as the answer, kept alive by the answer that sends it: no copy.
MHD_Result answerWith(
    MHD_Connection* connection, unsigned status, std::shared_ptr<const std::string> text, const std::string& type)
{
    auto* holder = new std::shared_ptr<const std::string>(std::move(text));
    MHD_Response* response = MHD_create_response_from_buffer_with_free_callback_cls((*holder)->size(),
        const_cast<char*>((*holder)->data()),
        [](void* held) { delete static_cast<std::shared_ptr<const std::string>*>(held); }, holder);
    if (response == nullptr) {
        delete holder;
        return MHD_NO;
    }
    MHD_add_response_header(response, MHD_HTTP_HEADER_CONTENT_TYPE, type.c_str());
    if (status == MHD_HTTP_METHOD_NOT_ALLOWED)
        MHD_add_response_header(response, MHD_HTTP_HEADER_ALLOW, "GET, HEAD");
    if (status == MHD_HTTP_UNAUTHORIZED)
        MHD_add_response_header(response, MHD_HTTP_HEADER_WWW_AUTHENTICATE, "Bearer");
    const MHD_Result queued = MHD_queue_response(connection, status, response);
    MHD_destroy_response(response);
    return queued;
}

// Anything but the metrics: a line saying why.
MHD_Result refuse(MHD_Connection* connection, unsigned status, const char* why)
{
    return answerWith(connection, status, std::make_shared<const std::string>(why), "text/plain; charset=utf-8");
}

// Compares without stopping at the first difference, so that the time taken
// says nothing about how much of a guess was right.
bool sameSecret(std::string_view given, std::string_view expected)
{
    unsigned char differs = given.size() == expected.size() ? 0 : 1;
    for (size_t i = 0; i < given.size(); ++i)
        differs |= static_cast<unsigned char>(given[i] ^ expected[i % std::max<size_t>(expected.size(), 1)]);
    return differs == 0 && !expected.empty();
}

MHD_Result answer(void* self, MHD_Connection* connection, const char* url, const char* method, const char*, const char*,
    size_t*, void**)
{
    const auto& server = *static_cast<const MetricsServer*>(self);
    if (std::strcmp(url, "/metrics") != 0)
        return refuse(connection, MHD_HTTP_NOT_FOUND, "Vexel serves its metrics at /metrics.\n");
    if (std::strcmp(method, MHD_HTTP_METHOD_GET) != 0 && std::strcmp(method, MHD_HTTP_METHOD_HEAD) != 0)
        return refuse(connection, MHD_HTTP_METHOD_NOT_ALLOWED, "Only GET and HEAD.\n");
    if (const auto& token = server.token()) {
        const char* given = MHD_lookup_connection_value(connection, MHD_HEADER_KIND, MHD_HTTP_HEADER_AUTHORIZATION);
        const std::string_view credentials = given == nullptr ? "" : given;
        if (!credentials.starts_with("Bearer ") || !sameSecret(TextScan::trim(credentials.substr(7)), *token))
            return refuse(connection, MHD_HTTP_UNAUTHORIZED, "A bearer token is needed.\n");
    }
    const auto texts = server.texts();
    if (!texts.prometheus)
        return refuse(connection, MHD_HTTP_SERVICE_UNAVAILABLE,
            "Vexel hasn't taken its first reading yet, or another process records this machine.\n");
    const char* accept = MHD_lookup_connection_value(connection, MHD_HEADER_KIND, MHD_HTTP_HEADER_ACCEPT);
    const MetricsFormat format = formatFor(accept == nullptr ? "" : accept);
    return answerWith(connection, MHD_HTTP_OK,
        format == MetricsFormat::openMetrics ? texts.openMetrics : texts.prometheus, std::string(contentType(format)));
}

} // namespace

std::optional<MetricsAddress> MetricsAddress::parse(const std::string& text, std::string& error)
{
    const auto colon = text.rfind(':');
    const auto port = colon == std::string::npos ? std::nullopt : TextScan::toI64(text.substr(colon + 1));
    if (!port || *port < 0 || *port > 65535) {
        error = "\"" + text + "\" is not an address and a port, like 127.0.0.1:9649";
        return std::nullopt;
    }
    MetricsAddress address;
    address.port = static_cast<uint16_t>(*port);
    address.host = text.substr(0, colon);
    if (address.host.size() >= 2 && address.host.front() == '[' && address.host.back() == ']')
        address.host = address.host.substr(1, address.host.size() - 2);
    in_addr v4{};
    in6_addr v6{};
    if (::inet_pton(AF_INET, address.host.c_str(), &v4) == 1) {
        address.loopback = (ntohl(v4.s_addr) >> 24) == 127;
    } else if (::inet_pton(AF_INET6, address.host.c_str(), &v6) == 1) {
        address.ipv6 = true;
        address.loopback = IN6_IS_ADDR_LOOPBACK(&v6);
    } else {
        error = "\"" + address.host + "\" is not a numeric IP address";
        return std::nullopt;
    }
    return address;
}

MetricsServer::MetricsServer(std::optional<std::string> token)
    : m_token(std::move(token))
{
}

std::unique_ptr<MetricsServer> MetricsServer::start(
    const MetricsAddress& address, const std::optional<std::string>& token, std::string& error)
{
    if (!address.loopback && !token) {
        error = address.host + " can be reached from other machines: give --metrics-token-file too";
        return nullptr;
    }
    sockaddr_in v4{};
    sockaddr_in6 v6{};
    const sockaddr* where = nullptr;
    if (address.ipv6) {
        v6.sin6_family = AF_INET6;
        v6.sin6_port = htons(address.port);
        ::inet_pton(AF_INET6, address.host.c_str(), &v6.sin6_addr);
        where = reinterpret_cast<const sockaddr*>(&v6);
    } else {
        v4.sin_family = AF_INET;
        v4.sin_port = htons(address.port);
        ::inet_pton(AF_INET, address.host.c_str(), &v4.sin_addr);
        where = reinterpret_cast<const sockaddr*>(&v4);
    }
    std::unique_ptr<MetricsServer> server(new MetricsServer(token));
    const unsigned flags
        = MHD_USE_INTERNAL_POLLING_THREAD | MHD_USE_POLL | (address.ipv6 ? static_cast<unsigned>(MHD_USE_IPv6) : 0u);
    server->m_daemon = MHD_start_daemon(flags, address.port, nullptr, nullptr, &answer, server.get(),
        MHD_OPTION_SOCK_ADDR, where, MHD_OPTION_CONNECTION_LIMIT, connectionLimit, MHD_OPTION_PER_IP_CONNECTION_LIMIT,
        perAddressLimit, MHD_OPTION_CONNECTION_MEMORY_LIMIT, connectionMemory, MHD_OPTION_CONNECTION_TIMEOUT,
        idleSeconds, MHD_OPTION_END);
    if (server->m_daemon == nullptr) {
        error = "couldn't serve metrics at " + address.host + ":" + std::to_string(address.port)
            + " (is the port taken?)";
        return nullptr;
    }
    return server;
}

MetricsServer::~MetricsServer()
{
    if (m_daemon != nullptr)
        MHD_stop_daemon(m_daemon);
}

void MetricsServer::publish(std::string prometheus, std::string openMetrics)
{
    Texts texts{std::make_shared<const std::string>(std::move(prometheus)),
        std::make_shared<const std::string>(std::move(openMetrics))};
    const std::lock_guard lock(m_mutex);
    std::swap(m_texts, texts); // the old ones are freed outside the lock, with `texts`
}

MetricsServer::Texts MetricsServer::texts() const
{
    const std::lock_guard lock(m_mutex);
    return m_texts;
}

uint16_t MetricsServer::port() const
{
    const MHD_DaemonInfo* info = MHD_get_daemon_info(m_daemon, MHD_DAEMON_INFO_BIND_PORT);
    return info == nullptr ? 0 : info->port;
}

} // namespace vexel
