// /proc/<pid> files: stat's name never holds the text after its last ")",
// and the other parsers stay within their inputs.

#include "FuzzInput.h"
#include "processes/linux/ProcPidFiles.h"

#include <algorithm>
#include <string>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const auto text = fuzzText(data, size);
    if (const auto stat = vexel::ProcPidFiles::parseStat(text)) {
        require(stat->comm.size() < size);
        require(stat->ppid >= 0);
    }
    (void)vexel::ProcPidFiles::parseSchedstatRuntime(text);
    (void)vexel::ProcPidFiles::parseStatmAnonPages(text);
    (void)vexel::ProcPidFiles::parseStatus(text);
    (void)vexel::ProcPidFiles::parseIo(text);
    if (const auto cgroup = vexel::ProcPidFiles::parseCgroup(text))
        require(cgroup->size() < size);
    require(vexel::ProcPidFiles::parseExeLink(text).path.size() <= size);
    require(vexel::ProcPidFiles::programName(text).size() <= size);
    // A name made whole is the comm or the exe's file name, which begins with it.
    const std::string comm(text.substr(0, std::min<size_t>(text.size(), 15)));
    const auto whole = vexel::ProcPidFiles::fullName(comm, text);
    require(whole.starts_with(comm) && whole.size() <= std::max(comm.size(), size));
    if (const auto app = vexel::ProcPidFiles::parseFlatpakInfo(text))
        require(!app->empty() && app->size() < size);
    if (const auto file = vexel::ProcPidFiles::environValue(text, "APPIMAGE"))
        require(file->size() < size);
    return 0;
}
