#include "rates/linux/LiveNetSource.h"

#include "processes/Shell.h"

#include <set>

namespace vexel {

namespace {

constexpr double ssTimeoutSeconds = 4;

} // namespace

LiveNetSource::LiveNetSource()
    : LiveNetSource([]() -> std::optional<std::string> {
        static const auto ss = Shell::find("ss");
        if (!ss)
            return std::nullopt;
        return Shell::run(*ss, {"-tinpHeO"}, ssTimeoutSeconds).output;
    })
{
}

LiveNetSource::LiveNetSource(std::function<std::optional<std::string>()> produce)
    : m_produce(std::move(produce))
{
}

std::optional<NetCounters> LiveNetSource::counters()
{
    const auto output = m_produce();
    if (!output)
        return std::nullopt;
    std::map<uint64_t, SsParser::TcpSocket> seen;
    std::set<int32_t> owners;
    for (const auto& socket : SsParser::parse(*output)) {
        owners.insert(socket.pid);
        if (socket.loopbackOnly)
            continue;
        const auto previous = m_sockets.find(socket.inode);
        auto& total = m_totals[socket.pid];
        if (previous != m_sockets.end() && previous->second.pid == socket.pid) {
            total.bytesIn += socket.bytesIn >= previous->second.bytesIn ? socket.bytesIn - previous->second.bytesIn : 0;
            total.bytesOut
                += socket.bytesOut >= previous->second.bytesOut ? socket.bytesOut - previous->second.bytesOut : 0;
        } else if (!m_firstRun) {
            // Opened since the last run: all of its bytes are new.
            total.bytesIn += socket.bytesIn;
            total.bytesOut += socket.bytesOut;
        }
        seen.insert_or_assign(socket.inode, socket);
    }
    m_sockets.swap(seen);
    m_firstRun = false;
    // A process holding no socket any more is dropped, so that a reused pid
    // cannot inherit its total; should it open sockets again, its total starts
    // afresh and the rate tracker reads the drop as no traffic.
    for (auto it = m_totals.begin(); it != m_totals.end();) {
        it = owners.contains(it->first) ? std::next(it) : m_totals.erase(it);
    }
    for (const int32_t pid : owners)
        m_totals.try_emplace(pid, NetCounter{});
    return m_totals;
}

} // namespace vexel
