#pragma once

#include <cstdint>
#include <memory>
#include <mutex>
#include <optional>
#include <string>

struct MHD_Daemon;

namespace vexel {

// Where the metrics are served: an address and a port ("127.0.0.1:9649",
// "[::1]:9649", "0.0.0.0:9649"), and whether only this machine can reach it.
struct MetricsAddress {
    std::string host; // numeric, without brackets
    uint16_t port = 0;
    bool ipv6 = false;
    bool loopback = false;

    // Nothing, with `error` said, for anything but a numeric address and a port.
    [[nodiscard]] static std::optional<MetricsAddress> parse(const std::string& text, std::string& error);
};

// Serves the latest metrics over HTTP, from a thread of its own, with
// libmicrohttpd: GET and HEAD on /metrics, 404 for other paths, 405 for
// other methods, 401 without the bearer token when one is set. Connections,
// their memory (and so the size of a request) and their idle time are
// bounded, so that a slow or half-open client costs one connection for ten
// seconds and never holds up the recorder, which only swaps in new text.
class MetricsServer {
public:
    // Starts serving; nothing, with `error` said, when it cannot (the port
    // taken, a token missing off loopback).
    [[nodiscard]] static std::unique_ptr<MetricsServer> start(
        const MetricsAddress& address, const std::optional<std::string>& token, std::string& error);
    ~MetricsServer();
    MetricsServer(const MetricsServer&) = delete;
    MetricsServer& operator=(const MetricsServer&) = delete;

    // The texts of the latest tick, in the two formats; until the first,
    // scrapes are told that no readings have been taken yet (503).
    void publish(std::string prometheus, std::string openMetrics);

    // The port bound (the one asked for, or the kernel's choice for 0).
    [[nodiscard]] uint16_t port() const;

    // The texts as they stand, for one answer.
    struct Texts {
        std::shared_ptr<const std::string> prometheus;
        std::shared_ptr<const std::string> openMetrics;
    };
    [[nodiscard]] Texts texts() const;
    [[nodiscard]] const std::optional<std::string>& token() const { return m_token; }

private:
    explicit MetricsServer(std::optional<std::string> token);

    MHD_Daemon* m_daemon = nullptr;
    std::optional<std::string> m_token;
    mutable std::mutex m_mutex;
    Texts m_texts;
};

} // namespace vexel
