#include "recording/StopSignals.h"

#include <pthread.h>

namespace vexel {

sigset_t stopSignals()
{
    sigset_t set;
    sigemptyset(&set);
    sigaddset(&set, SIGTERM);
    sigaddset(&set, SIGINT);
    sigaddset(&set, SIGHUP);
    return set;
}

sigset_t blockStopSignals()
{
    const sigset_t set = stopSignals();
    ::pthread_sigmask(SIG_BLOCK, &set, nullptr);
    return set;
}

} // namespace vexel
