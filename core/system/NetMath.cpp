#include "system/NetMath.h"

#include <array>

namespace vexel::NetMath {

namespace {

constexpr std::array<std::string_view, 12> macPrefixes{
    "lo", "utun", "ipsec", "gif", "stf", "awdl", "llw", "bridge", "anpi", "ap", "vmenet", "XHC"};

// Virtual interface families whose traffic also crosses a physical NIC.
constexpr std::array<std::string_view, 18> linuxPrefixes{"lo", "docker", "br-", "veth", "virbr", "vnet", "vboxnet",
    "vmnet", "tun", "tap", "wg", "tailscale", "zt", "ipsec", "gre", "sit", "ifb", "dummy"};

template <size_t N> bool hasAnyPrefix(std::string_view name, const std::array<std::string_view, N>& prefixes)
{
    for (const auto prefix : prefixes) {
        if (name.starts_with(prefix))
            return true;
    }
    return false;
}

} // namespace

bool countsInterface(std::string_view name)
{
    return !hasAnyPrefix(name, macPrefixes);
}

bool countsLinuxInterface(std::string_view name, LinuxInterface kind)
{
    if (name.empty() || hasAnyPrefix(name, linuxPrefixes))
        return false;
    return kind != LinuxInterface::virtualOnly;
}

} // namespace vexel::NetMath
