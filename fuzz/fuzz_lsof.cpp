// lsof output: every socket has a port from a number or a known service, and
// the field and table parsers never produce an address with brackets.

#include "FuzzInput.h"
#include "devservers/LsofParser.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const auto text = fuzzText(data, size);
    for (const auto& socket : vexel::LsofParser::parse(text)) {
        require(socket.address.size() < size);
        require(socket.address.empty() || socket.address.front() != '[' || socket.address.back() != ']');
    }
    (void)vexel::LsofParser::parseTable(text);
    if (const auto place = vexel::LsofParser::endpoint(text))
        require(place->first.size() < size);
    return 0;
}
