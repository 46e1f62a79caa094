#include "processes/PsParser.h"

#include "text/TextScan.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

namespace vexel::PsParser {

namespace {

constexpr std::array<std::string_view, 7> weekdays{"Sun", "Mon", "Tue", "Wed", "Thu", "Fri", "Sat"};
constexpr std::array<std::string_view, 12> months{
    "Jan", "Feb", "Mar", "Apr", "May", "Jun", "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};

std::optional<int> smallNumber(std::string_view text)
{
    const auto value = TextScan::toI64(text);
    if (!value || *value < 0 || *value > 100000)
        return std::nullopt;
    return static_cast<int>(*value);
}

// "EEE MMM d HH:mm:ss yyyy" as English words, whatever the locale.
std::optional<double> parseStart(const std::vector<std::string_view>& fields, const TimeZone& zone)
{
    const auto weekday = std::find(weekdays.begin(), weekdays.end(), fields[0]);
    const auto month = std::find(months.begin(), months.end(), fields[1]);
    const auto& clock = fields[3];
    if (weekday == weekdays.end() || month == months.end() || clock.size() != 8 || clock[2] != ':' || clock[5] != ':')
        return std::nullopt;
    const auto day = smallNumber(fields[2]);
    const auto hour = smallNumber(clock.substr(0, 2));
    const auto minute = smallNumber(clock.substr(3, 2));
    const auto second = smallNumber(clock.substr(6, 2));
    const auto year = smallNumber(fields[4]);
    if (!day || !hour || !minute || !second || !year)
        return std::nullopt;
    return zone.toEpoch(CivilTime{*year, static_cast<int>(month - months.begin()) + 1, *day, *hour, *minute, *second});
}

std::optional<int32_t> toInt32(std::string_view text)
{
    const auto value = TextScan::toI64(text);
    if (!value || *value < std::numeric_limits<int32_t>::min() || *value > std::numeric_limits<int32_t>::max())
        return std::nullopt;
    return static_cast<int32_t>(*value);
}

} // namespace

std::optional<double> parseTime(std::string_view text)
{
    double days = 0;
    const auto dash = text.find('-');
    if (dash != std::string_view::npos) {
        const auto parsed = TextScan::toU64(text.substr(0, dash));
        if (!parsed || text.substr(0, dash).find_first_of(" \t") != std::string_view::npos)
            return std::nullopt;
        days = static_cast<double>(*parsed);
        text.remove_prefix(dash + 1);
    }
    std::vector<std::string_view> pieces;
    size_t position = 0;
    while (position <= text.size()) {
        const auto colon = text.find(':', position);
        const auto piece
            = text.substr(position, colon == std::string_view::npos ? std::string_view::npos : colon - position);
        if (!piece.empty())
            pieces.push_back(piece);
        if (colon == std::string_view::npos)
            break;
        position = colon + 1;
    }
    if (pieces.empty() || pieces.size() > 3)
        return std::nullopt;
    double folded = 0;
    for (const auto piece : pieces) {
        const auto value = TextScan::toDouble(piece);
        if (!value || !std::isfinite(*value) || *value < 0 || piece.find_first_of(" \t") != std::string_view::npos)
            return std::nullopt;
        folded = folded * 60 + *value;
    }
    return days * 86400 + folded;
}

std::optional<ProcRecord> parseLine(std::string_view line, const TimeZone& zone)
{
    const auto fields = TextScan::words(TextScan::trim(line));
    if (fields.size() < 11)
        return std::nullopt;
    const auto pid = toInt32(fields[0]);
    const auto ppid = toInt32(fields[1]);
    const auto uid = TextScan::toU64(fields[2]);
    if (!pid || !ppid || !uid || *uid > std::numeric_limits<uint32_t>::max())
        return std::nullopt;
    ProcRecord record;
    record.pid = *pid;
    record.ppid = *ppid;
    record.uid = static_cast<uint32_t>(*uid);
    record.zombie = fields[3].find('Z') != std::string_view::npos;
    record.cpuTime = parseTime(fields[4]);
    const auto rss = TextScan::toU64(fields[5]);
    if (!record.cpuTime || !rss || *rss > std::numeric_limits<uint64_t>::max() / 1024)
        return std::nullopt;
    record.memory = *rss * 1024;
    const auto start = parseStart({fields.begin() + 6, fields.begin() + 11}, zone);
    if (!start)
        return std::nullopt;
    record.start = *start;
    std::string command;
    for (size_t i = 11; i < fields.size(); ++i) {
        if (!command.empty())
            command += ' ';
        command += fields[i];
    }
    if (command == "<defunct>") {
        record.name = "defunct";
        record.zombie = true;
    } else if (command.starts_with('/')) {
        record.name = command.substr(command.rfind('/') + 1);
        record.path = command;
    } else {
        record.name = command;
    }
    return record;
}

std::vector<ProcRecord> parse(std::string_view text, const TimeZone& zone)
{
    std::vector<ProcRecord> records;
    TextScan::forEachLine(text, [&](std::string_view line) {
        if (auto record = parseLine(line, zone))
            records.push_back(std::move(*record));
    });
    return records;
}

} // namespace vexel::PsParser
