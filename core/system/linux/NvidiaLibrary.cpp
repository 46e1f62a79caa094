#include "system/linux/NvidiaLibrary.h"

#include <dlfcn.h>

namespace vexel::NvidiaLibrary {

namespace {

// The few entry points of NVML's stable C interface that we call.
struct Nvml {
    using Init = int (*)();
    using Count = int (*)(unsigned int*);
    using Handle = int (*)(unsigned int, void**);
    using Name = int (*)(void*, char*, unsigned int);
    struct Utilization {
        unsigned int gpu;
        unsigned int memory;
    };
    using Rates = int (*)(void*, Utilization*);

    void* library = nullptr;
    Count count = nullptr;
    Handle handle = nullptr;
    Name name = nullptr;
    Rates rates = nullptr;
    bool ready = false;
};

template <typename F> F symbol(void* library, const char* name)
{
    return reinterpret_cast<F>(::dlsym(library, name));
}

Nvml open()
{
    Nvml nvml;
    nvml.library = ::dlopen("libnvidia-ml.so.1", RTLD_LAZY | RTLD_LOCAL);
    if (nvml.library == nullptr)
        return nvml;
    const auto init = symbol<Nvml::Init>(nvml.library, "nvmlInit_v2");
    nvml.count = symbol<Nvml::Count>(nvml.library, "nvmlDeviceGetCount_v2");
    nvml.handle = symbol<Nvml::Handle>(nvml.library, "nvmlDeviceGetHandleByIndex_v2");
    nvml.name = symbol<Nvml::Name>(nvml.library, "nvmlDeviceGetName");
    nvml.rates = symbol<Nvml::Rates>(nvml.library, "nvmlDeviceGetUtilizationRates");
    nvml.ready = init != nullptr && nvml.count != nullptr && nvml.handle != nullptr && nvml.name != nullptr
        && nvml.rates != nullptr && init() == 0;
    return nvml;
}

} // namespace

std::vector<NvidiaGpu> query()
{
    // Initialising NVML takes tens of milliseconds, so it is done once per process.
    static const Nvml nvml = open();
    std::vector<NvidiaGpu> gpus;
    unsigned int count = 0;
    if (!nvml.ready || nvml.count(&count) != 0)
        return gpus;
    for (unsigned int i = 0; i < count && i < 64; ++i) {
        void* device = nullptr;
        Nvml::Utilization utilization{};
        if (nvml.handle(i, &device) != 0 || nvml.rates(device, &utilization) != 0)
            continue;
        char name[96] = {};
        if (nvml.name(device, name, sizeof name) != 0)
            name[0] = '\0';
        gpus.push_back(NvidiaGpu{name, static_cast<double>(utilization.gpu) / 100.0});
    }
    return gpus;
}

} // namespace vexel::NvidiaLibrary
