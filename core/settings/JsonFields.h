#pragma once

#include <nlohmann/json.hpp>

#include <cmath>
#include <limits>
#include <optional>
#include <string>
#include <type_traits>

namespace vexel::JsonFields {

// Key-by-key tolerant decoding: `into` takes the member's value only when the
// key is present with a value of the right type; otherwise it keeps what it
// held (the default). Whole numbers accept integral floating values ("5.0").
template <typename T> void read(const nlohmann::ordered_json& json, const char* key, T& into)
{
    if (!json.is_object())
        return;
    const auto it = json.find(key);
    if (it == json.end())
        return;
    if constexpr (std::is_same_v<T, bool>) {
        if (it->is_boolean())
            into = it->get<bool>();
    } else if constexpr (std::is_floating_point_v<T>) {
        // JSON has no infinities: a number too large to hold is as wrong as a string.
        if (it->is_number() && std::isfinite(it->get<double>()))
            into = it->get<T>();
    } else if constexpr (std::is_integral_v<T>) {
        if (!it->is_number())
            return;
        const double value = it->get<double>();
        if (std::isfinite(value) && std::floor(value) == value
            && value >= static_cast<double>(std::numeric_limits<T>::min())
            && value <= static_cast<double>(std::numeric_limits<T>::max()))
            into = it->is_number_integer() ? it->get<T>() : static_cast<T>(value);
    } else if constexpr (std::is_same_v<T, std::string>) {
        if (it->is_string())
            into = it->get<std::string>();
    }
}

} // namespace vexel::JsonFields
