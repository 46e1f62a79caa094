#include "metrics/MetricsText.h"

#include "devservers/DevServers.h"
#include "spikes/Spike.h"

#include <charconv>
#include <cmath>
#include <initializer_list>
#include <utility>

namespace vexel {

namespace {

using Labels = std::initializer_list<std::pair<std::string_view, std::string_view>>;

// A label's value: valid UTF-8 with \, " and line breaks escaped. A byte
// that is not part of a UTF-8 character becomes "?".
void appendLabelValue(std::string& out, std::string_view value)
{
    for (size_t i = 0; i < value.size();) {
        const auto byte = static_cast<unsigned char>(value[i]);
        const size_t length = byte < 0x80 ? 1
            : (byte >> 5) == 0x6          ? 2
            : (byte >> 4) == 0xe          ? 3
            : (byte >> 3) == 0x1e         ? 4
                                          : 0;
        bool whole = length > 0 && i + length <= value.size();
        for (size_t k = 1; whole && k < length; ++k)
            whole = (static_cast<unsigned char>(value[i + k]) & 0xc0) == 0x80;
        if (!whole) {
            out += '?';
            ++i;
            continue;
        }
        if (byte == '\\' || byte == '"')
            out += '\\';
        if (byte == '\n')
            out += "\\n";
        else
            out.append(value.substr(i, length));
        i += length;
    }
}

void appendNumber(std::string& out, double value)
{
    if (std::isnan(value)) {
        out += "NaN";
        return;
    }
    if (std::isinf(value)) {
        out += value > 0 ? "+Inf" : "-Inf";
        return;
    }
    char buffer[32];
    const auto written = std::to_chars(buffer, buffer + sizeof buffer, value);
    out.append(buffer, written.ptr);
}

// Writes families and their samples in one of the two spellings.
class Writer {
public:
    explicit Writer(MetricsFormat format)
        : m_format(format)
    {
        m_out.reserve(16 * 1024);
    }

    // A family; a counter's name ends in "_total" in its samples. `unit`
    // must end the name ("bytes", "seconds"), or be empty.
    void family(std::string_view name, std::string_view type, std::string_view unit, std::string_view help)
    {
        m_name = name;
        m_counter = type == "counter";
        const std::string declared
            = std::string(name) + (m_counter && m_format == MetricsFormat::prometheus ? "_total" : "");
        m_out += "# TYPE " + declared + " " + std::string(type) + "\n";
        if (!unit.empty() && m_format == MetricsFormat::openMetrics)
            m_out += "# UNIT " + declared + " " + std::string(unit) + "\n";
        m_out += "# HELP " + declared + " " + std::string(help) + "\n";
    }

    void sample(double value, Labels labels = {})
    {
        m_out += m_name;
        if (m_counter)
            m_out += "_total";
        if (labels.size() > 0) {
            m_out += '{';
            bool first = true;
            for (const auto& [key, text] : labels) {
                m_out += first ? "" : ",";
                m_out.append(key);
                m_out += "=\"";
                appendLabelValue(m_out, text);
                m_out += '"';
                first = false;
            }
            m_out += '}';
        }
        m_out += ' ';
        appendNumber(m_out, value);
        m_out += '\n';
    }

    // One family with one sample.
    void single(
        std::string_view name, std::string_view type, std::string_view unit, std::string_view help, double value)
    {
        family(name, type, unit, help);
        sample(value);
    }

    std::string finish()
    {
        if (m_format == MetricsFormat::openMetrics)
            m_out += "# EOF\n";
        return std::move(m_out);
    }

private:
    MetricsFormat m_format;
    std::string m_out;
    std::string m_name;
    bool m_counter = false;
};

void writeSystem(Writer& w, const MetricsBook& book)
{
    const auto& system = book.system();
    w.single("vexel_cpu_usage_ratio", "gauge", "ratio", "Share of all cores busy, 0 to 1.",
        system.cpu.user + system.cpu.system);
    w.family("vexel_cpu_core_usage_ratio", "gauge", "ratio", "Share of each logical core busy, 0 to 1.");
    for (size_t core = 0; core < system.cpu.cores.size(); ++core)
        w.sample(system.cpu.cores[core], {{"core", std::to_string(core)}});
    w.single("vexel_cpu_seconds", "counter", "seconds", "CPU time used on all cores since the recorder started.",
        book.machine().cpuSeconds);
    w.single("vexel_load1", "gauge", "", "Load average over one minute.", system.cpu.load1);
    w.single("vexel_load5", "gauge", "", "Load average over five minutes.", system.cpu.load5);
    w.single("vexel_load15", "gauge", "", "Load average over fifteen minutes.", system.cpu.load15);
    const auto& memory = system.memory;
    w.single("vexel_memory_total_bytes", "gauge", "bytes", "Physical memory.", static_cast<double>(memory.total));
    w.single("vexel_memory_used_bytes", "gauge", "bytes", "Memory held by processes and the kernel.",
        static_cast<double>(memory.used()));
    w.single("vexel_memory_cached_bytes", "gauge", "bytes", "File cache the kernel can reclaim.",
        static_cast<double>(memory.cached));
    w.single("vexel_swap_used_bytes", "gauge", "bytes", "Swap in use.", static_cast<double>(memory.swapUsed));
    w.single("vexel_memory_pressure_level", "gauge", "", "Memory pressure: 0 normal, 1 warning, 2 critical.",
        rawValue(memory.pressure));
    w.single("vexel_disk_read_bytes", "counter", "bytes", "Bytes read from disks since the recorder started.",
        book.machine().diskRead);
    w.single("vexel_disk_written_bytes", "counter", "bytes", "Bytes written to disks since the recorder started.",
        book.machine().diskWritten);
    if (const auto root = system.disk.main()) {
        w.single("vexel_root_volume_size_bytes", "gauge", "bytes", "Capacity of the root volume.",
            static_cast<double>(root->total));
        w.single("vexel_root_volume_available_bytes", "gauge", "bytes", "Space on the root volume available to users.",
            static_cast<double>(root->available));
    }
    w.single("vexel_network_received_bytes", "counter", "bytes", "Bytes received since the recorder started.",
        book.machine().netReceived);
    w.single("vexel_network_sent_bytes", "counter", "bytes", "Bytes sent since the recorder started.",
        book.machine().netSent);
    if (system.gpu)
        w.single("vexel_gpu_usage_ratio", "gauge", "ratio", "Share of the GPU busy, 0 to 1.", system.gpu->utilisation);
    if (const auto& battery = system.battery) {
        w.single("vexel_battery_charge_ratio", "gauge", "ratio", "Battery charge, 0 to 1.", battery->percent / 100.0);
        w.single("vexel_battery_charging", "gauge", "", "1 while the battery charges.", battery->charging ? 1 : 0);
        if (battery->powerW)
            w.single("vexel_battery_power_watts", "gauge", "watts", "Power into the battery; negative while it drains.",
                *battery->powerW);
    }
    w.single("vexel_thermal_level", "gauge", "", "Thermal state: 0 nominal, 1 fair, 2 serious, 3 critical.",
        rawValue(system.thermal));
    if (!system.sensors.temperatures.empty()) {
        w.family("vexel_temperature_celsius", "gauge", "celsius", "Temperature of each sensor the system reports.");
        for (const auto& sensor : system.sensors.temperatures)
            w.sample(sensor.celsius, {{"chip", sensor.chip}, {"sensor", sensor.label}});
    }
    w.single("vexel_processes", "gauge", "", "Processes counted.", static_cast<double>(book.processes()));
}

void writeApps(Writer& w, const MetricsBook& book)
{
    struct Counter {
        const char* name;
        const char* unit;
        const char* help;
        double AppCounts::*field;
    };
    for (const auto& c :
        {Counter{"vexel_app_cpu_seconds", "seconds", "CPU time used by the app's processes.", &AppCounts::cpuSeconds},
            Counter{"vexel_app_disk_read_bytes", "bytes", "Bytes the app's processes read from disk.",
                &AppCounts::diskRead},
            Counter{"vexel_app_disk_written_bytes", "bytes", "Bytes the app's processes wrote to disk.",
                &AppCounts::diskWritten},
            Counter{"vexel_app_network_received_bytes", "bytes", "Bytes the app's processes received.",
                &AppCounts::netReceived},
            Counter{"vexel_app_network_sent_bytes", "bytes", "Bytes the app's processes sent.", &AppCounts::netSent}}) {
        w.family(c.name, "counter", c.unit, c.help);
        for (const auto& app : book.apps())
            w.sample(app.counts.*c.field, {{"app", app.name}});
    }
    w.family("vexel_app_memory_bytes", "gauge", "bytes", "Memory of the app's processes.");
    for (const auto& app : book.apps())
        w.sample(static_cast<double>(app.memory), {{"app", app.name}});
    w.family("vexel_app_processes", "gauge", "", "Processes of the app.");
    for (const auto& app : book.apps())
        w.sample(app.processes, {{"app", app.name}});
}

void writeServers(Writer& w, const MetricsBook& book)
{
    for (const bool idle : {false, true}) {
        if (idle)
            w.family(
                "vexel_dev_server_idle", "gauge", "", "1 when a dev server has had no activity for the idle time.");
        else
            w.family("vexel_dev_server_info", "gauge", "", "A dev server listening on a port, by project.");
        for (const auto& group : book.servers())
            for (const auto& server : group.servers)
                for (const auto port : server.ports)
                    w.sample(idle ? (server.isIdle ? 1 : 0) : 1,
                        {{"project", group.project.name}, {"port", std::to_string(port)}, {"runtime", server.runtime}});
    }
}

void writeStrain(Writer& w, const MetricsBook& book)
{
    const auto& rules = book.strain();
    const auto& system = book.system();
    w.family("vexel_strain_level", "gauge", "", "How a reading is judged: 0 calm, 1 elevated, 2 strained.");
    const std::pair<const char*, Strain> levels[] = {
        {"cpu", rules.cpu(system.cpu.user + system.cpu.system)},
        {"memory", rules.memory(system.memory)},
        {"disk", rules.disk(system.disk)},
        {"network", rules.network(system.net)},
        {"gpu", rules.gpu(system.gpu)},
        {"battery", rules.battery(system.battery)},
        {"thermal", rules.thermal(system.thermal)},
    };
    for (const auto& [reading, level] : levels)
        w.sample(static_cast<int>(level), {{"reading", reading}});
    w.family("vexel_spikes", "counter", "", "Spikes found in the last hour's readings since the recorder started.");
    for (const auto kind : {SpikeKind::cpu, SpikeKind::memory, SpikeKind::disk, SpikeKind::network, SpikeKind::thermal,
             SpikeKind::battery}) {
        const auto counted = book.spikes().find(rawValue(kind));
        w.sample(counted == book.spikes().end() ? 0 : counted->second, {{"kind", rawValue(kind)}});
    }
}

} // namespace

std::string_view contentType(MetricsFormat format)
{
    return format == MetricsFormat::openMetrics ? "application/openmetrics-text; version=1.0.0; charset=utf-8"
                                                : "text/plain; version=0.0.4; charset=utf-8";
}

MetricsFormat formatFor(std::string_view accept)
{
    return accept.find("application/openmetrics-text") != std::string_view::npos ? MetricsFormat::openMetrics
                                                                                 : MetricsFormat::prometheus;
}

std::string metricsText(const MetricsBook& book, MetricsFormat format)
{
    Writer w(format);
    writeSystem(w, book);
    writeApps(w, book);
    writeServers(w, book);
    writeStrain(w, book);
    w.single("vexel_last_tick_timestamp_seconds", "gauge", "seconds", "When the readings were taken.", book.time());
    return w.finish();
}

} // namespace vexel
