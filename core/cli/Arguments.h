#pragma once

#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vexel::Arguments {

// The command line's own argument rules, which options may stand anywhere by.

// Removes every element equal to `flag`; true when there was one.
bool takeFlag(std::vector<std::string>& args, std::string_view flag);

// The value after the first element equal to any of `spellings`, both then
// removed. A spelling in last place has no value: it stays where it is and
// nothing is returned.
std::optional<std::string> takeOption(
    std::vector<std::string>& args, std::initializer_list<std::string_view> spellings);

// A whole decimal integer with an optional sign ("12", "-3", "+4"); nothing
// for anything else, spaces and overflow included.
[[nodiscard]] std::optional<long long> parseInteger(const std::string& text);

// A number by the C library's strtod when the whole text is one ("2.5",
// "1e2", " 3"); nothing otherwise.
[[nodiscard]] std::optional<double> parseNumber(const std::string& text);

} // namespace vexel::Arguments
