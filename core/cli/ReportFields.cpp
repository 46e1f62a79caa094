#include "cli/ReportFields.h"

namespace vexel::ReportFields {

using nlohmann::json;

const json* field(const json& object, const char* key)
{
    if (!object.is_object())
        return nullptr;
    const auto found = object.find(key);
    return found == object.end() ? nullptr : &*found;
}

std::optional<double> number(const json& object, const char* key)
{
    const json* value = field(object, key);
    return value != nullptr && value->is_number() ? std::optional(value->get<double>()) : std::nullopt;
}

uint64_t byteCount(const json& object, const char* key)
{
    const double value = number(object, key).value_or(0);
    return value > 0 ? static_cast<uint64_t>(value) : 0;
}

std::optional<std::string> text(const json& object, const char* key)
{
    const json* value = field(object, key);
    return value != nullptr && value->is_string() ? std::optional(value->get<std::string>()) : std::nullopt;
}

std::optional<bool> flag(const json& object, const char* key)
{
    const json* value = field(object, key);
    return value != nullptr && value->is_boolean() ? std::optional(value->get<bool>()) : std::nullopt;
}

const json& list(const json& object, const char* key)
{
    static const json empty = json::array();
    const json* value = field(object, key);
    return value != nullptr && value->is_array() ? *value : empty;
}

} // namespace vexel::ReportFields
