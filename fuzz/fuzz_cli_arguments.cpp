// The command line's own argument rules: options come out wherever they stand,
// a trailing spelling stays, and the number parsers never accept what they
// cannot read back.

#include "FuzzInput.h"

#include "cli/Arguments.h"
#include "text/TextScan.h"

#include <cerrno>
#include <cstdlib>
#include <string>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    std::vector<std::string> args;
    for (const auto word : vexel::TextScan::words(fuzzText(data, size)))
        args.emplace_back(word);
    const auto before = args.size();
    const bool json = vexel::Arguments::takeFlag(args, "--json");
    require(json == (args.size() < before));
    for (const auto& arg : args)
        require(arg != "--json");
    const auto count = vexel::Arguments::takeOption(args, {"-n", "--limit"});
    if (count) {
        if (const auto value = vexel::Arguments::parseInteger(*count)) {
            // What the strict parser takes, the C library reads the same way, all of it.
            char* end = nullptr;
            errno = 0;
            const long long expected = std::strtoll(count->c_str(), &end, 10);
            require(*end == '\0' && errno == 0 && expected == *value);
        }
    }
    if (const auto hours = vexel::Arguments::takeOption(args, {"--hours"}))
        (void)vexel::Arguments::parseNumber(*hours);
    return 0;
}
