#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vexel::TextScan {

// Numbers and words out of /proc and sysfs text. Every function is total:
// malformed input gives nothing, never an exception.

// A whole unsigned decimal number, surrounding blanks allowed.
[[nodiscard]] std::optional<uint64_t> toU64(std::string_view text);

// A whole signed decimal number, surrounding blanks allowed.
[[nodiscard]] std::optional<int64_t> toI64(std::string_view text);

// A decimal number such as "0.23" or "-1.5e3", surrounding blanks allowed.
[[nodiscard]] std::optional<double> toDouble(std::string_view text);

// The text without leading and trailing blanks, tabs and newlines.
[[nodiscard]] std::string_view trim(std::string_view text);

// The words of a line, split at runs of blanks and tabs.
[[nodiscard]] std::vector<std::string_view> words(std::string_view line);

// Undoes "\xHH" escapes, as systemd writes them in unit names and udev in
// label links ("app-gnome-debian\x2dxterm", "USB\x20STICK").
[[nodiscard]] std::string unescapeHex(std::string_view text);

// Calls `visit` with each line of `text`, without its newline.
template <typename Visit> void forEachLine(std::string_view text, Visit&& visit)
{
    while (!text.empty()) {
        const auto end = text.find('\n');
        visit(text.substr(0, end));
        if (end == std::string_view::npos)
            break;
        text.remove_prefix(end + 1);
    }
}

} // namespace vexel::TextScan
