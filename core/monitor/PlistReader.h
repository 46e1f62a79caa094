#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace vexel::PlistReader {

// The string value of `key` in the top-level dictionary of an XML property
// list (Info.plist); nothing when the key is missing, not a string, or the
// text is not a property list. Entities (&amp; &lt; &#233;…) are decoded.
[[nodiscard]] std::optional<std::string> topLevelString(std::string_view xml, std::string_view key);

} // namespace vexel::PlistReader
