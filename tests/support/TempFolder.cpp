#include "support/TempFolder.h"

#include <cstdlib>
#include <sys/stat.h>
#include <system_error>

namespace vexel::testing {

namespace fs = std::filesystem;

TempFolder::TempFolder(const std::string& prefix)
{
    std::string pattern = (fs::temp_directory_path() / (prefix + "-XXXXXX")).string();
    if (::mkdtemp(pattern.data()) == nullptr)
        throw std::system_error(errno, std::generic_category(), "mkdtemp");
    m_path = pattern;
}

TempFolder::~TempFolder()
{
    std::error_code error;
    fs::remove_all(m_path, error);
}

std::map<std::string, std::string> folderState(const fs::path& folder)
{
    std::map<std::string, std::string> state;
    std::error_code error;
    if (!fs::exists(folder, error))
        return state;
    for (const auto& entry : fs::recursive_directory_iterator(folder, error)) {
        struct stat info { };
        if (::lstat(entry.path().c_str(), &info) != 0)
            continue;
        state[entry.path().string()] = std::to_string(info.st_size) + "@" + std::to_string(info.st_mtim.tv_sec) + "."
            + std::to_string(info.st_mtim.tv_nsec) + "/" + std::to_string(info.st_mode);
    }
    return state;
}

} // namespace vexel::testing
