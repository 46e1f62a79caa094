#pragma once

#include <filesystem>
#include <map>
#include <string>

namespace vexel::testing {

// A fresh folder under the system's temporary folder, removed with everything
// in it when the value goes.
class TempFolder {
public:
    explicit TempFolder(const std::string& prefix);
    ~TempFolder();
    TempFolder(const TempFolder&) = delete;
    TempFolder& operator=(const TempFolder&) = delete;

    [[nodiscard]] const std::filesystem::path& path() const { return m_path; }

private:
    std::filesystem::path m_path;
};

// Every file under `folder` with its size and modification time, to show
// that a run left the folder as it was.
[[nodiscard]] std::map<std::string, std::string> folderState(const std::filesystem::path& folder);

} // namespace vexel::testing
