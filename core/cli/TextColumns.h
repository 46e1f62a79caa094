#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace vexel::TextColumns {

enum class Align { left, right };

// A cell `width` characters wide: longer text is cut to its first `width`
// characters (UTF-8 sequences are kept whole), shorter text is padded with
// spaces after it (left) or before it (right).
[[nodiscard]] std::string cell(std::string_view text, size_t width, Align align = Align::left);

// The number of characters (code points) in UTF-8 text.
[[nodiscard]] size_t characters(std::string_view text);

// Lines joined with "\n", no trailing newline.
[[nodiscard]] std::string joinLines(const std::vector<std::string>& lines);

} // namespace vexel::TextColumns
