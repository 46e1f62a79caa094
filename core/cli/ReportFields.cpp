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
