#include "system/linux/VolumeReader.h"

#include "io/Files.h"
#include "system/linux/Mountinfo.h"
#include "text/TextScan.h"

namespace vexel {

namespace {

std::string osReleaseName(std::string_view text)
{
    std::string name;
    TextScan::forEachLine(text, [&](std::string_view line) {
        if (!line.starts_with("NAME="))
            return;
        auto value = TextScan::trim(line.substr(5));
        if (value.size() >= 2 && (value.front() == '"' || value.front() == '\'') && value.back() == value.front())
            value = value.substr(1, value.size() - 2);
        name = std::string(value);
    });
    return name;
}

} // namespace

std::string VolumeReader::systemName() const
{
    const auto text = Files::read(m_roots.osRelease, 16 * 1024);
    return text ? osReleaseName(*text) : std::string();
}

std::string VolumeReader::label(const std::string& source, const std::string& mountPoint) const
{
    if (source.starts_with("/dev/")) {
        const auto device = Files::realPath(m_roots.dev + source.substr(4));
        const std::string labels = m_roots.dev + "/disk/by-label";
        for (const auto& entry : Files::list(labels)) {
            if (device && Files::realPath(labels + "/" + entry) == device)
                return TextScan::unescapeHex(entry); // udev escapes blanks and slashes
        }
    }
    if (mountPoint == "/") {
        const auto name = systemName();
        return name.empty() ? "/" : name;
    }
    return Files::baseName(mountPoint);
}

std::vector<VolumeInfo> VolumeReader::volumes() const
{
    std::vector<VolumeInfo> result;
    const auto text = Files::read(m_roots.proc + "/self/mountinfo", 1024 * 1024);
    if (!text || !m_roots.capacity)
        return result;
    for (const auto& mount : Mountinfo::userVolumes(Mountinfo::parse(*text))) {
        const auto capacity = m_roots.capacity(mount.mountPoint);
        if (!capacity || capacity->total < 1)
            continue;
        result.push_back(
            VolumeInfo{label(mount.source, mount.mountPoint), mount.mountPoint, capacity->total, capacity->available});
    }
    return result;
}

} // namespace vexel
