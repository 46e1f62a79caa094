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
    if (auto lsof = Shell::find("lsof"))
        return std::make_unique<LsofPortSource>(std::move(lsof));
    return std::make_unique<SsPortSource>(Shell::find("ss"));
}

} // namespace vexel
