#pragma once

#include "processes/ProcRecord.h"
#include "time/TimeZone.h"

#include <optional>
#include <string_view>
#include <vector>

namespace vexel::PsParser {

// Records of `ps -axo pid=,ppid=,uid=,stat=,time=,rss=,lstart=,comm=` output
// (macOS and Linux procps print the same columns), start times read in
// `zone`. Lines that do not parse are skipped.
[[nodiscard]] std::vector<ProcRecord> parse(std::string_view text, const TimeZone& zone);

// One line: eleven or more fields, or nothing. The command may hold blanks;
// a command starting with "/" is a path and names the process by its last
// component; "<defunct>" marks a zombie named "defunct".
[[nodiscard]] std::optional<ProcRecord> parseLine(std::string_view line, const TimeZone& zone);

// Processor time "[[dd-]hh:]mm:ss[.ff]" in seconds: 1:02.50 is 62.5, 2-03:04:05 is 183845.
[[nodiscard]] std::optional<double> parseTime(std::string_view text);

} // namespace vexel::PsParser
