#include "grouping/linux/DesktopEntry.h"

#include "text/TextScan.h"

#include <algorithm>
#include <vector>

namespace vexel {

namespace {

// A string value with its escapes undone: \\ \s \t \n \r.
std::string unescaped(std::string_view value)
{
    std::string result;
    for (size_t i = 0; i < value.size(); ++i) {
        if (value[i] != '\\' || i + 1 == value.size()) {
            result += value[i];
            continue;
        }
        switch (const char next = value[++i]) {
        case 's': result += ' '; break;
        case 't': result += '\t'; break;
        case 'n': result += '\n'; break;
        case 'r': result += '\r'; break;
        default: result += next; break;
        }
    }
    return result;
}

// Splits an Exec value into words, honouring double quotes and backslash
// escapes; %% is a percent sign.
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
        } else if (c == '%' && i + 1 < exec.size() && exec[i + 1] == '%') {
            current += exec[++i];
            inWord = true;
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
    const auto words = execWords(unescaped(exec));
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

std::string DesktopEntry::execArgument(std::string_view word)
{
    std::string quoted = "\"";
    for (const char c : word) {
        if (c == '"' || c == '`' || c == '$')
            quoted += "\\\\";
        else if (c == '\\')
            quoted += "\\\\\\";
        if (c == '%')
            quoted += '%';
        quoted += c;
    }
    return quoted + '"';
}

std::vector<std::string> DesktopEntry::localeKeys(std::string_view locale)
{
    if (const auto dot = locale.find('.'); dot != std::string_view::npos) {
        const auto at = locale.find('@', dot);
        std::string withoutEncoding(locale.substr(0, dot));
        if (at != std::string_view::npos)
            withoutEncoding += locale.substr(at);
        return localeKeys(withoutEncoding);
    }
    if (locale.empty() || locale == "C" || locale == "POSIX")
        return {};
    const auto at = locale.find('@');
    const auto modifier = at == std::string_view::npos ? std::string_view() : locale.substr(at);
    const auto languageCountry = locale.substr(0, at);
    const auto language = languageCountry.substr(0, languageCountry.find('_'));
    std::vector<std::string> keys;
    const auto add = [&keys](std::string key) {
        if (!key.empty() && std::find(keys.begin(), keys.end(), key) == keys.end())
            keys.push_back(std::move(key));
    };
    if (!modifier.empty())
        add(std::string(languageCountry) + std::string(modifier));
    add(std::string(languageCountry));
    if (!modifier.empty())
        add(std::string(language) + std::string(modifier));
    add(std::string(language));
    return keys;
}

std::optional<DesktopEntry> DesktopEntry::parse(std::string_view text, std::string_view locale)
{
    const auto wanted = localeKeys(locale);
    size_t bestLocalised = wanted.size(); // index in `wanted` of the name taken so far
    std::string localised;
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
        } else if (key.starts_with("Name[") && key.ends_with("]") && !value.empty()) {
            const auto tag = key.substr(5, key.size() - 6);
            const auto rank = static_cast<size_t>(std::find(wanted.begin(), wanted.end(), tag) - wanted.begin());
            if (rank < bestLocalised) {
                bestLocalised = rank;
                localised = std::string(value);
            }
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
    if (!localised.empty())
        entry.name = std::move(localised);
    return entry;
}

} // namespace vexel
