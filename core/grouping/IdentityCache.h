#pragma once

#include "grouping/Identity.h"

#include <string>
#include <unordered_map>

namespace vexel {

// Remembers base identities between frames, keyed by what decides them (the
// process name and path, and on Linux its cgroup and kind of user). A cache
// that reaches 5001 entries is emptied before the next one is stored.
class IdentityCache {
public:
    static constexpr size_t limit = 5001;

    [[nodiscard]] const Identity* find(const std::string& key) const
    {
        const auto found = m_base.find(key);
        return found == m_base.end() ? nullptr : &found->second;
    }

    const Identity& store(const std::string& key, Identity identity)
    {
        if (m_base.size() >= limit)
            m_base.clear();
        return m_base.insert_or_assign(key, std::move(identity)).first->second;
    }

    [[nodiscard]] size_t size() const { return m_base.size(); }
    void clear() { m_base.clear(); }

private:
    std::unordered_map<std::string, Identity> m_base;
};

} // namespace vexel
