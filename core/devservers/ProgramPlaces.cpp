#include "devservers/ProgramPlaces.h"

#include "grouping/AppIdentity.h"

#include <algorithm>

namespace vexel {

namespace {

bool startsWithAny(const std::string& text, const std::vector<std::string>& prefixes)
{
    return std::any_of(prefixes.begin(), prefixes.end(), [&](const auto& prefix) { return text.starts_with(prefix); });
}

} // namespace

ProgramPlaces ProgramPlaces::macOS()
{
    ProgramPlaces places;
    places.appDataFolders = {"Library/"};
    return places;
}

ProgramPlaces ProgramPlaces::linux(uint32_t uidMin)
{
    ProgramPlaces places;
    places.systemFolders
        = {"/usr/sbin/", "/sbin/", "/usr/lib/", "/usr/lib64/", "/usr/libexec/", "/lib/", "/lib64/", "/usr/local/sbin/"};
    places.systemCgroups = {"/system.slice/", "/init.scope"};
    places.uidMin = uidMin;
    places.appDataFolders = {".local/share/", ".config/", ".cache/", ".var/app/", "snap/"};
    places.appDataHoldsRuntimes = true;
    return places;
}

bool ProgramPlaces::isSystemProgram(const ProcRecord& record) const
{
    if (record.path) {
        // macOS keeps its folders with app grouping; Linux lists its own.
        if (systemFolders.empty() ? AppIdentity::isSystemPath(*record.path)
                                  : startsWithAny(*record.path, systemFolders))
            return true;
    }
    if (record.cgroup && startsWithAny(*record.cgroup, systemCgroups))
        return true;
    return record.uid < uidMin;
}

bool ProgramPlaces::inAppData(const std::string& path, const std::string& home) const
{
    if (!path.starts_with(home + "/"))
        return false;
    const std::string below = path.substr(home.size() + 1);
    return startsWithAny(below, appDataFolders);
}

} // namespace vexel
