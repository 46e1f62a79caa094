#include "text/HomePath.h"

namespace vexel {

std::string shownPath(const std::string& path, std::string home)
{
    while (home.size() > 1 && home.back() == '/')
        home.pop_back();
    if (home.empty() || home == "/" || !path.starts_with(home))
        return path;
    if (path.size() == home.size())
        return "~";
    if (path[home.size()] != '/')
        return path; // /home/ann2 is not under /home/ann
    return "~" + path.substr(home.size());
}

} // namespace vexel
