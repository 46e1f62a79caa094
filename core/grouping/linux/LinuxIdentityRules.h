#pragma once

#include "grouping/AppIdentity.h"
#include "grouping/linux/CgroupLeaf.h"
#include "grouping/linux/DesktopIndex.h"
#include "grouping/linux/DesktopIndexSource.h"

#include <memory>
#include <string>

namespace vexel {

// The Linux rules for naming processes: kernel threads, families by name,
// Flatpak, Snap and AppImage apps, systemd app scopes, desktop entries and
// their install folders, system services and the desktop session.
class LinuxIdentityRules final : public IdentityRules {
public:
    // `uidMin` is the first uid of ordinary users (UID_MIN of login.defs).
    LinuxIdentityRules(
        std::shared_ptr<const DesktopIndex> index, BundleNameFunction desktopName, uint32_t uidMin = 1000);
    // With an index that is rebuilt as apps come and go.
    LinuxIdentityRules(
        std::shared_ptr<DesktopIndexSource> source, BundleNameFunction desktopName, uint32_t uidMin = 1000);

    [[nodiscard]] bool refresh() const override;
    [[nodiscard]] Identity base(const ProcRecord& record) const override;
    void cacheKey(const ProcRecord& record, std::string& key) const override;
    [[nodiscard]] bool isLauncher(const ProcRecord& parent) const override;
    [[nodiscard]] bool isMainExecutable(const ProcRecord& record, const Identity& identity) const override;

    // The Linux families of system processes ("Display server", "Audio"…) by comm or executable name.
    [[nodiscard]] static std::optional<std::string> familyByName(std::string_view name);

private:
    [[nodiscard]] std::optional<Identity> fromUnit(const CgroupLeaf::AppUnit& unit) const;
    [[nodiscard]] std::optional<Identity> fromLeafUnit(const ProcRecord& record) const;
    [[nodiscard]] std::optional<Identity> fromEnclosingUnit(const ProcRecord& record) const;
    [[nodiscard]] std::optional<Identity> fromSnap(const ProcRecord& record) const;
    [[nodiscard]] static Identity appImage(const ProcRecord& record, const std::string& mount);
    [[nodiscard]] std::optional<Identity> fromInstall(const std::string& executable) const;
    [[nodiscard]] Identity desktopApp(const DesktopIndex::App& app) const;
    [[nodiscard]] bool isSystemOwned(const ProcRecord& record) const;

    [[nodiscard]] const DesktopIndex* index() const;

    std::shared_ptr<const DesktopIndex> m_index;
    std::shared_ptr<DesktopIndexSource> m_source;
    BundleNameFunction m_desktopName;
    uint32_t m_uidMin;
};

} // namespace vexel
