#pragma once

#include <map>
#include <mutex>
#include <optional>
#include <string>

namespace vexel {

// Display names of apps, read once per bundle or desktop file for the life
// of the process. Safe to use from several threads: every access to the cache
// holds its lock.
class BundleNames {
public:
    // The name of the app at `path`: a macOS bundle's CFBundleDisplayName (else
    // CFBundleName) from Contents/Info.plist, or a .desktop file's Name.
    // Nothing when it cannot be read; that answer is cached too.
    [[nodiscard]] std::optional<std::string> name(const std::string& path);

private:
    std::mutex m_lock;
    std::map<std::string, std::optional<std::string>> m_cache;
};

} // namespace vexel
