#pragma once

#include "grouping/Identity.h"
#include "grouping/IdentityCache.h"
#include "platform/Platform.h"
#include "processes/ProcRecord.h"

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace vexel {

// A bundle's display name, or nothing; backed by a locked cache.
using BundleNameFunction = std::function<std::optional<std::string>(const std::string& bundlePath)>;

// The rules of one platform for naming processes.
class IdentityRules {
public:
    virtual ~IdentityRules() = default;

    // Brings what the rules read (an index of installed apps) up to date,
    // once per naming of a process list; true when names given before may no
    // longer hold.
    [[nodiscard]] virtual bool refresh() const { return false; }

    // The identity of a process taken alone, and the cache key that decides it.
    [[nodiscard]] virtual Identity base(const ProcRecord& record) const = 0;
    // Writes into `key` (reused from call to call) what decides the base identity.
    virtual void cacheKey(const ProcRecord& record, std::string& key) const = 0;
    // Whether a parent stands for "no parent": the system's launcher, which
    // starts (and adopts) processes of every app.
    [[nodiscard]] virtual bool isLauncher(const ProcRecord& parent) const = 0;
    // Whether a process is the app's own main program rather than a helper.
    [[nodiscard]] virtual bool isMainExecutable(const ProcRecord& record, const Identity& identity) const = 0;
};

namespace AppIdentity {

// The family of system processes a process name belongs to ("Spotlight", "Kernel"…).
[[nodiscard]] std::optional<std::string> familyByName(std::string_view name);

// The shortest prefix of `path` that ends in ".app" at a component boundary.
[[nodiscard]] std::optional<std::string> outermostApp(std::string_view path);

// Whether `path` is the bundle's main executable (bundle + "/Contents/MacOS/…").
[[nodiscard]] bool isMainExecutable(std::string_view path, std::string_view bundle);

// Whether `path` lies in one of the system's own folders.
[[nodiscard]] bool isSystemPath(std::string_view path);

// The identity of the system's own services on `platform` ("macOS services").
[[nodiscard]] Identity services(Platform platform);

// The macOS identity of one process taken alone.
[[nodiscard]] Identity base(const ProcRecord& record, const BundleNameFunction& bundleName);

// The distinct identities of a frame and, for each record in order, the index of its own.
struct Resolution {
    std::vector<Identity> identities;
    std::vector<uint32_t> indexOfRecord;
};

// Every record's final identity: helpers follow their parents to the app or
// tool that started them, zombies join their parent, and the launcher's
// children keep their own.
[[nodiscard]] Resolution resolveAll(
    const std::vector<ProcRecord>& records, const IdentityRules& rules, IdentityCache* cache);

// The same as a map by pid.
[[nodiscard]] std::unordered_map<int32_t, Identity> resolve(
    const std::vector<ProcRecord>& records, const IdentityRules& rules, IdentityCache* cache);

} // namespace AppIdentity

// The macOS rules: app bundles, families by name, system folders.
class MacIdentityRules final : public IdentityRules {
public:
    explicit MacIdentityRules(BundleNameFunction bundleName)
        : m_bundleName(std::move(bundleName))
    {
    }

    [[nodiscard]] Identity base(const ProcRecord& record) const override;
    void cacheKey(const ProcRecord& record, std::string& key) const override;
    [[nodiscard]] bool isLauncher(const ProcRecord& parent) const override;
    [[nodiscard]] bool isMainExecutable(const ProcRecord& record, const Identity& identity) const override;

private:
    BundleNameFunction m_bundleName;
};

} // namespace vexel
