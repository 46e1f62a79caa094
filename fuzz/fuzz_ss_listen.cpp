// ss -ltnpH output: every listener has an owner pid and an address without brackets.

#include "FuzzInput.h"
#include "devservers/linux/SsListenParser.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    for (const auto& socket : vexel::SsListenParser::parse(fuzzText(data, size))) {
        require(socket.pid >= 0);
        require(socket.address.find('%') == std::string::npos);
    }
    return 0;
}
