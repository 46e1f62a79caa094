#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace vexel::PciIds {

// The device's name in a pci.ids database ("\t73bf  Navi 21 […]" under the
// vendor line "1002  Advanced Micro Devices…"). Ids are four lower-case hex
// digits without "0x". Nothing when the vendor or device is not listed.
[[nodiscard]] std::optional<std::string> deviceName(
    std::string_view database, std::string_view vendor, std::string_view device);

// "0x1002\n" → "1002": the form sysfs writes ids in, made comparable.
[[nodiscard]] std::string normaliseId(std::string_view sysfsValue);

} // namespace vexel::PciIds
