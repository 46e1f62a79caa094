#include "devservers/linux/LinuxPortSources.h"

#include "devservers/LsofParser.h"
#include "devservers/linux/SsListenParser.h"
#include "processes/Shell.h"

namespace vexel {

namespace {

constexpr double timeoutSeconds = 5;

} // namespace

LsofPortSource::LsofPortSource(std::optional<std::string> lsof)
    : m_lsof(std::move(lsof))
{
}

std::optional<std::vector<ListenSocket>> LsofPortSource::listeners()
{
    if (!m_lsof)
        return std::nullopt;
    const std::vector<std::string> args(LsofParser::arguments.begin(), LsofParser::arguments.end());
    const auto output = Shell::run(*m_lsof, args, timeoutSeconds);
    if (!output)
        return std::nullopt;
    return LsofParser::parse(*output);
}

SsPortSource::SsPortSource(std::optional<std::string> ss)
    : m_ss(std::move(ss))
{
}

std::optional<std::vector<ListenSocket>> SsPortSource::listeners()
{
    if (!m_ss)
        return std::nullopt;
    const auto output = Shell::run(*m_ss, {"-ltnpH"}, timeoutSeconds);
    if (!output)
        return std::nullopt;
    return SsListenParser::parse(*output);
}

std::unique_ptr<PortSource> liveLinuxPortSource()
{
    // ss lists every user's listeners, faster, and keeps the processes lsof
    // drops (4.95 loses any whose name holds an unclosed "(", as Next.js's
    // "next-server (v14.2.3)" cut to "next-server (v1"). lsof stands in where
    // iproute2 is missing.
    if (auto ss = Shell::find("ss"))
        return std::make_unique<SsPortSource>(std::move(ss));
    return std::make_unique<LsofPortSource>(Shell::find("lsof"));
}

} // namespace vexel
