#include "support/Golden.h"

#include "io/AtomicFile.h"
#include "io/Files.h"

#include <cstdlib>
#include <filesystem>

namespace vexel::testing {

std::string compareGolden(const std::string& name, const std::string& actual)
{
    const std::filesystem::path file = std::filesystem::path(VEXEL_SOURCE_DIR) / "tests" / "golden" / name;
    const char* update = std::getenv("UPDATE_GOLDEN");
    if (update != nullptr && std::string(update) == "1") {
        std::filesystem::create_directories(file.parent_path());
        AtomicFile::write(file, actual);
        return {};
    }
    const auto expected = Files::read(file.string());
    if (!expected)
        return "missing golden file " + file.string() + " (run with UPDATE_GOLDEN=1)";
    if (*expected == actual)
        return {};
    size_t at = 0;
    while (at < expected->size() && at < actual.size() && (*expected)[at] == actual[at])
        ++at;
    const size_t from = at > 80 ? at - 80 : 0;
    return name + " differs at byte " + std::to_string(at) + "\nexpected: …" + expected->substr(from, 160)
        + "\nactual:   …" + actual.substr(from, 160);
}

} // namespace vexel::testing
