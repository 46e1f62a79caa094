#include "system/linux/GpuReader.h"

#include "io/Files.h"
#include "system/linux/PciIds.h"
#include "text/TextScan.h"

#include <algorithm>

namespace vexel {

namespace {

bool isCardName(const std::string& name)
{
    return name.size() > 4 && name.starts_with("card")
        && std::all_of(name.begin() + 4, name.end(), [](char c) { return c >= '0' && c <= '9'; });
}

std::optional<double> numberAt(const std::string& path)
{
    return TextScan::toDouble(Files::readValue(path));
}

bool isSuspended(const std::string& device)
{
    return Files::readValue(device + "/power/runtime_status") == "suspended";
}

// "0000:01:00.0": the entries of a PCI driver's folder that are its devices.
bool isPciAddress(const std::string& name)
{
    return name.size() == 12 && name[4] == ':' && name[7] == ':' && name[10] == '.';
}

std::string deviceName(const std::string& device, const std::optional<std::string>& database)
{
    const auto product = Files::readValue(device + "/product_name");
    if (!product.empty())
        return product;
    const auto vendor = PciIds::normaliseId(Files::readValue(device + "/vendor"));
    const auto model = PciIds::normaliseId(Files::readValue(device + "/device"));
    const auto known = database ? PciIds::deviceName(*database, vendor, model) : std::nullopt;
    return known.value_or("GPU");
}

} // namespace

void GpuReader::discover()
{
    m_discovered = true;
    const std::string drm = m_roots.sys + "/class/drm";
    auto names = Files::list(drm);
    std::sort(names.begin(), names.end());
    const auto database = Files::read(m_roots.pciIds, 8 * 1024 * 1024);
    for (const auto& name : names) {
        if (!isCardName(name))
            continue;
        Card card;
        card.path = drm + "/" + name;
        const std::string device = card.path + "/device";
        if (!Files::readValue(device + "/class").starts_with("0x03"))
            continue;
        const auto driver = Files::readLink(device + "/driver");
        card.driver = driver ? Files::baseName(*driver) : std::string();
        card.bootVga = Files::readValue(device + "/boot_vga") == "1";
        card.name = deviceName(device, database);
        m_cards.push_back(std::move(card));
    }
    discoverNvidia(database);
}

void GpuReader::discoverNvidia(const std::optional<std::string>& database)
{
    // Without nvidia-drm the GPU has no DRM card, but the loaded driver
    // lists its devices on the PCI bus.
    m_nvidiaDriver = Files::exists(m_roots.proc + "/driver/nvidia/version");
    const std::string bound = m_roots.sys + "/bus/pci/drivers/nvidia";
    auto names = Files::list(bound);
    std::sort(names.begin(), names.end());
    for (const auto& name : names) {
        if (isPciAddress(name))
            m_nvidia.push_back({bound + "/" + name, deviceName(bound + "/" + name, database)});
    }
    if (!m_nvidia.empty())
        return;
    for (const auto& card : m_cards) {
        if (card.driver == "nvidia")
            m_nvidia.push_back({card.path + "/device", card.name});
    }
}

bool GpuReader::anyNvidiaAwake(const std::function<void(const std::string&)>& asleep) const
{
    // Nothing in sysfs to ask: only the library can tell.
    bool awake = m_nvidia.empty();
    for (const auto& device : m_nvidia) {
        if (isSuspended(device.path))
            asleep(device.name);
        else
            awake = true;
    }
    return awake;
}

std::optional<double> GpuReader::load(Card& card, double now) const
{
    const std::string device = card.path + "/device";
    if (card.driver == "amdgpu") {
        // Reading the busy file would wake a suspended discrete GPU.
        if (isSuspended(device))
            return 0.0;
        const auto percent = numberAt(device + "/gpu_busy_percent");
        if (!percent)
            return std::nullopt;
        return *percent / 100.0;
    }
    if (card.driver == "i915" || card.driver == "xe") {
        const char* counter
            = card.driver == "xe" ? "/device/tile0/gt0/gtidle/idle_residency_ms" : "/gt/gt0/rc6_residency_ms";
        auto idle = numberAt(card.path + counter);
        if (!idle && card.driver == "i915")
            idle = numberAt(card.path + "/power/rc6_residency_ms");
        if (!idle)
            return std::nullopt;
        std::optional<double> busy;
        if (card.lastIdleMs && now > card.lastTime)
            busy = 1.0 - std::max(0.0, *idle - *card.lastIdleMs) / ((now - card.lastTime) * 1000.0);
        card.lastIdleMs = idle;
        card.lastTime = now;
        return busy.value_or(0.0);
    }
    return std::nullopt;
}

std::optional<GPUStats> GpuReader::read(double now)
{
    if (!m_discovered)
        discover();
    std::optional<GPUStats> busiest;
    bool busiestBoots = false;
    const auto consider = [&](const std::string& name, double utilisation, bool boots) {
        utilisation = std::clamp(utilisation, 0.0, 1.0);
        const bool better = !busiest || utilisation > busiest->utilisation
            || (utilisation == busiest->utilisation && boots && !busiestBoots);
        if (better) {
            busiest = GPUStats{utilisation, name};
            busiestBoots = boots;
        }
    };
    for (auto& card : m_cards) {
        if (const auto utilisation = load(card, now))
            consider(card.name, *utilisation, card.bootVga);
    }
    // NVML wakes a runtime-suspended GPU on every call: a hybrid laptop's
    // sleeping NVIDIA GPU reads idle unasked, and the library is asked only
    // while one is awake.
    if ((m_nvidiaDriver || !m_nvidia.empty()) && m_roots.nvidia
        && anyNvidiaAwake([&](const std::string& name) { consider(name, 0, false); })) {
        for (const auto& gpu : m_roots.nvidia())
            consider(gpu.name.empty() ? "GPU" : gpu.name, gpu.utilisation, false);
    }
    return busiest;
}

} // namespace vexel
