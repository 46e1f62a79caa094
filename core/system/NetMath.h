#pragma once

#include <string_view>

namespace vexel::NetMath {

// Whether traffic on a macOS interface counts: loopback, tunnels, AirDrop,
// bridges and virtual adapters are left out so that traffic is counted once.
// A plain prefix test: any name beginning with "ap" is left out.
[[nodiscard]] bool countsInterface(std::string_view name);

// What sysfs says about a Linux interface.
enum class LinuxInterface {
    physical, // /sys/class/net/<if>/device exists
    virtualOnly, // no device: loopback, bridges, tunnels, veth…
    unknown, // sysfs could not tell (for example inside a container)
};

// Whether traffic on a Linux interface counts: a physical device whose name is
// not one of the virtual families; when sysfs cannot tell, any name outside those families.
[[nodiscard]] bool countsLinuxInterface(std::string_view name, LinuxInterface kind);

} // namespace vexel::NetMath
