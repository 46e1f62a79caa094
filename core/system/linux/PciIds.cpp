#include "system/linux/PciIds.h"

#include "text/TextScan.h"

#include <cctype>

namespace vexel::PciIds {

namespace {

bool startsWithId(std::string_view line, std::string_view id)
{
    return line.size() > id.size() + 1 && line.starts_with(id) && (line[id.size()] == ' ' || line[id.size()] == '\t');
}

} // namespace

std::string normaliseId(std::string_view sysfsValue)
{
    auto value = TextScan::trim(sysfsValue);
    if (value.starts_with("0x") || value.starts_with("0X"))
        value.remove_prefix(2);
    std::string id(value);
    for (auto& c : id)
        c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    return id;
}

std::optional<std::string> deviceName(std::string_view database, std::string_view vendor, std::string_view device)
{
    if (vendor.size() != 4 || device.size() != 4)
        return std::nullopt;
    bool inVendor = false;
    std::optional<std::string> found;
    TextScan::forEachLine(database, [&](std::string_view line) {
        if (found || line.empty() || line.front() == '#')
            return;
        if (line.starts_with("C "))
            inVendor = false; // the device classes section: no more vendors follow
        else if (line.front() != '\t')
            inVendor = startsWithId(line, vendor);
        else if (inVendor && line.size() > 1 && line[1] != '\t' && startsWithId(line.substr(1), device))
            found = std::string(TextScan::trim(line.substr(1 + device.size())));
    });
    if (found && found->empty())
        return std::nullopt;
    return found;
}

} // namespace vexel::PciIds
