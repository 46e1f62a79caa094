#include "support/ProcessTable.h"

#include <fstream>
#include <sstream>

namespace vexel::testing {

std::vector<ProcRecord> loadProcessTable(const std::string& path, double bootEpoch)
{
    std::vector<ProcRecord> records;
    std::ifstream in(path);
    std::string line;
    while (std::getline(in, line)) {
        if (line.empty() || line.front() == '#')
            continue;
        std::vector<std::string> fields;
        std::stringstream split(line);
        std::string field;
        while (std::getline(split, field, '\t'))
            fields.push_back(field);
        if (fields.size() != 8)
            continue;
        ProcRecord record;
        record.pid = std::stoi(fields[0]);
        record.ppid = std::stoi(fields[1]);
        record.uid = static_cast<uint32_t>(std::stoul(fields[2]));
        record.start = bootEpoch + std::stod(fields[3]);
        record.kernelThread = fields[4] == "k";
        record.zombie = fields[4] == "z";
        record.name = fields[5];
        if (fields[6] != "-")
            record.path = fields[6];
        if (fields[7] != "-")
            record.cgroup = fields[7];
        if (!record.zombie) {
            record.cpuTime = 1.0;
            record.memory = 1u << 20;
            record.memoryIsFootprint = true;
        }
        records.push_back(std::move(record));
    }
    return records;
}

} // namespace vexel::testing
