#include "system/NetMath.h"

#include <gtest/gtest.h>

using namespace vexel;
using NetMath::LinuxInterface;

TEST(NetMath, MacInterfacesByPrefix)
{
    for (const char* name : {"lo0", "utun3", "awdl0", "llw0", "bridge100", "ap1", "anpi0", "vmenet0", "ipsec0", "gif0",
             "stf0", "XHC20", "apple"})
        EXPECT_FALSE(NetMath::countsInterface(name)) << name;
    for (const char* name : {"en0", "en7", "pdp_ip0", "xhc0"})
        EXPECT_TRUE(NetMath::countsInterface(name)) << name;
}

TEST(NetMath, LinuxInterfacesByDeviceAndPrefix)
{
    EXPECT_TRUE(NetMath::countsLinuxInterface("eth0", LinuxInterface::physical));
    EXPECT_TRUE(NetMath::countsLinuxInterface("wlp5s0", LinuxInterface::physical));
    EXPECT_FALSE(NetMath::countsLinuxInterface("ifb0", LinuxInterface::virtualOnly));
    EXPECT_FALSE(NetMath::countsLinuxInterface("bond0", LinuxInterface::virtualOnly));
    // The prefix list is a safety net even where sysfs claims a device (USB tethered tunnels, odd drivers).
    for (const char* name : {"lo", "docker0", "br-1a2b", "veth12", "virbr0", "vnet3", "vboxnet0", "vmnet8", "tun0",
             "tap1", "wg0", "tailscale0", "zt5u4y", "ipsec1", "gre0", "sit0", "ifb1", "dummy0"})
        EXPECT_FALSE(NetMath::countsLinuxInterface(name, LinuxInterface::physical)) << name;
    // Inside a container sysfs cannot tell: anything outside the virtual families counts.
    EXPECT_TRUE(NetMath::countsLinuxInterface("eth0", LinuxInterface::unknown));
    EXPECT_FALSE(NetMath::countsLinuxInterface("veth0", LinuxInterface::unknown));
    EXPECT_FALSE(NetMath::countsLinuxInterface("", LinuxInterface::unknown));
}
