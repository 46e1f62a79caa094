#include "grouping/linux/DesktopEntry.h"

#include "text/TextScan.h"

#include <vector>

namespace vexel {

namespace {

// Splits an Exec value into words, honouring double quotes and backslash escapes.
std::vector<std::string> execWords(std::string_view exec)
{
    std::vector<std::string> words;
    std::string current;
    bool quoted = false;
    bool inWord = false;
    for (size_t i = 0; i < exec.size(); ++i) {
        const char c = exec[i];
        if (quoted && c == '\\' && i + 1 < exec.size()) {
            current += exec[++i];
        } else if (c == '"') {
            quoted = !quoted;
            inWord = true;
        } else if (!quoted && (c == ' ' || c == '\t')) {
            if (inWord)
                words.push_back(std::move(current));
            current.clear();
            inWord = false;
        } else {
            current += c;
            inWord = true;
        }
    }
    if (inWord)
        words.push_back(std::move(current));
    return words;
}

bool isTrue(std::string_view value)
{
    return value == "true" || value == "1";
}

} // namespace

std::string DesktopEntry::programOf(std::string_view exec)
{
    const auto words = execWords(exec);
    size_t i = 0;
    if (i < words.size() && (words[i] == "env" || words[i] == "/usr/bin/env")) {
        ++i;
        while (i < words.size() && (words[i].find('=') != std::string::npos || words[i].starts_with('-')))
            ++i;
    }
    for (; i < words.size(); ++i) {
        if (!words[i].starts_with('%'))
            return words[i];
    }
    return {};
}

std::optional<DesktopEntry> DesktopEntry::parse(std::string_view text)
{
    DesktopEntry entry;
    bool inGroup = false;
    bool application = false;
    bool named = false;
    TextScan::forEachLine(text, [&](std::string_view line) {
        line = TextScan::trim(line);
        if (line.empty() || line.front() == '#')
            return;
        if (line.front() == '[') {
            inGroup = line == "[Desktop Entry]";
            return;
        }
        const auto equals = line.find('=');
        if (!inGroup || equals == std::string_view::npos)
            return;
        const auto key = TextScan::trim(line.substr(0, equals));
        const auto value = TextScan::trim(line.substr(equals + 1));
        if (key == "Type")
            application = value == "Application";
        else if (key == "Name") {
            entry.name = std::string(value);
            named = !value.empty();
        } else if (key == "Exec")
            entry.program = programOf(value);
        else if (key == "TryExec")
            entry.tryExec = std::string(value);
        else if (key == "StartupWMClass")
            entry.wmClass = std::string(value);
        else if (key == "Terminal")
            entry.terminal = isTrue(value);
        else if (key == "Hidden")
            entry.hidden = isTrue(value);
    });
    if (!application || !named)
        return std::nullopt;
    return entry;
}

} // namespace vexel
