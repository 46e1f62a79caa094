#include "platform/linux/LoginDefs.h"

#include "io/Files.h"
#include "text/TextScan.h"

#include <charconv>

namespace vexel::LoginDefs {

uint32_t parseUidMin(std::string_view text)
{
    uint32_t uidMin = defaultUidMin;
    TextScan::forEachLine(text, [&](std::string_view line) {
        const auto words = TextScan::words(line);
        if (words.size() < 2 || words[0] != "UID_MIN")
            return;
        uint32_t value = 0;
        const auto [end, error] = std::from_chars(words[1].data(), words[1].data() + words[1].size(), value);
        if (error == std::errc() && end == words[1].data() + words[1].size())
            uidMin = value;
    });
    return uidMin;
}

uint32_t liveUidMin()
{
    return parseUidMin(Files::read("/etc/login.defs").value_or(""));
}

} // namespace vexel::LoginDefs
