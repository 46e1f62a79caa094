#pragma once

#include <cmath>
#include <limits>
#include <optional>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>

namespace vexel::JsonFields {

// The one tolerant reader of JSON objects (settings, reports, MCP
// arguments, the activity log): a key that is missing, or holds a value of
// another kind, reads as nothing, and the caller keeps its default. Works on
// any nlohmann JSON type (sorted or ordered keys).

// The value under `key` when `object` is an object holding it; nullptr otherwise.
template <typename Json> [[nodiscard]] const Json* field(const Json& object, std::string_view key)
{
    if (!object.is_object())
        return nullptr;
    const auto found = object.find(key);
    return found == object.end() ? nullptr : &*found;
}

// The value under `key` as a T, when it holds one:
//   bool         a JSON boolean;
//   floating     a finite number (JSON has no infinities: a number too large to hold is as wrong as a string);
//   integral     a whole number within T's range, also when written with a zero fraction ("5.0");
//   std::string  a string.
template <typename T, typename Json> [[nodiscard]] std::optional<T> value(const Json& object, std::string_view key)
{
    const Json* it = field(object, key);
    if (it == nullptr)
        return std::nullopt;
    if constexpr (std::is_same_v<T, bool>) {
        if (it->is_boolean())
            return it->template get<bool>();
    } else if constexpr (std::is_floating_point_v<T>) {
        if (it->is_number() && std::isfinite(it->template get<double>()))
            return it->template get<T>();
    } else if constexpr (std::is_integral_v<T>) {
        if (it->is_number_unsigned())
            return it->template get<unsigned long long>()
                    <= static_cast<unsigned long long>(std::numeric_limits<T>::max())
                ? std::optional<T>(static_cast<T>(it->template get<unsigned long long>()))
                : std::nullopt;
        if (it->is_number_integer()) {
            const auto whole = it->template get<long long>();
            if (std::in_range<T>(whole))
                return static_cast<T>(whole);
        } else if (it->is_number()) {
            const double number = it->template get<double>();
            // The largest double below 2^63 keeps the conversion defined.
            const bool whole = std::isfinite(number) && std::floor(number) == number && std::fabs(number) < 9.2e18;
            if (whole && std::in_range<T>(static_cast<long long>(number)))
                return static_cast<T>(number);
        }
    } else if constexpr (std::is_same_v<T, std::string>) {
        if (it->is_string())
            return it->template get<std::string>();
    }
    return std::nullopt;
}

// `into` takes the value under `key` when there is one of its kind, and
// otherwise keeps what it held.
template <typename T, typename Json> void read(const Json& object, std::string_view key, T& into)
{
    if (auto found = value<T>(object, key))
        into = std::move(*found);
}

} // namespace vexel::JsonFields
