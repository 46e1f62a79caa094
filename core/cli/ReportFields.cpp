#include "cli/ReportFields.h"

#include "json/JsonFields.h"

namespace vexel::ReportFields {

using nlohmann::json;

uint64_t byteCount(const json& object, std::string_view key)
{
    const double value = JsonFields::value<double>(object, key).value_or(0);
    return value > 0 && value < 1.8e19 ? static_cast<uint64_t>(value) : 0;
}

const json& list(const json& object, std::string_view key)
{
    static const json empty = json::array();
    const json* value = JsonFields::field(object, key);
    return value != nullptr && value->is_array() ? *value : empty;
}

} // namespace vexel::ReportFields
