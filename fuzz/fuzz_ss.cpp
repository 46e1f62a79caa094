// ss output: every socket has an owner and an inode.

#include "FuzzInput.h"
#include "rates/linux/SsParser.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    for (const auto& socket : vexel::SsParser::parse(fuzzText(data, size))) {
        require(socket.pid >= 0);
        require(socket.inode > 0);
    }
    (void)vexel::SsParser::isLoopback(fuzzText(data, size));
    return 0;
}
