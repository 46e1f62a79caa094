#include "reports/ReportTexts.h"

namespace vexel::ReportTexts {

std::string notMeasured(Platform platform)
{
    if (platform == Platform::macOS)
        return "Temperatures, fan speeds, Neural Engine use and per-app GPU have no public macOS API, so Vexel leaves "
               "them out.";
    // Linux does expose temperatures and fans; Vexel reads them only to judge the thermal state.
    return "Temperatures and fan speeds only decide the thermal state, and per-app GPU use isn't measured, so Vexel "
           "leaves them out.";
}

std::string portsNote(Platform platform)
{
    if (platform == Platform::macOS)
        return "Your own processes only; macOS doesn't show other users' sockets without admin rights.";
    return "Your own processes only; Linux doesn't say which process holds another user's socket without admin "
           "rights.";
}

} // namespace vexel::ReportTexts
