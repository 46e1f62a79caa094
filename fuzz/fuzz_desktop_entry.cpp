// .desktop files and systemd unit names: an entry always has a name; a unit's
// ids are never empty and never longer than the leaf.

#include "FuzzInput.h"
#include "grouping/linux/CgroupLeaf.h"
#include "grouping/linux/DesktopEntry.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const auto text = fuzzText(data, size);
    if (const auto entry = vexel::DesktopEntry::parse(text))
        require(!entry->name.empty());
    if (const auto entry = vexel::DesktopEntry::parse(text, "sr_RS.UTF-8@latin"))
        require(!entry->name.empty());
    for (const auto& key : vexel::DesktopEntry::localeKeys(text))
        require(!key.empty() && key.size() <= size);
    const auto leaf = vexel::CgroupLeaf::leaf(text);
    require(leaf.size() <= size);
    if (const auto unit = vexel::CgroupLeaf::appUnit(leaf)) {
        require(!unit->id.empty() && unit->id.size() <= leaf.size());
        require(unit->launcherlessId.size() <= unit->id.size());
        require(unit->snapApp.size() <= leaf.size());
    }
    size_t around = 0;
    for (const auto& component : vexel::CgroupLeaf::enclosing(text))
        around += component.size();
    require(around <= size);
    return 0;
}
