#include "monitor/PlistReader.h"

#include "text/TextScan.h"

namespace vexel::PlistReader {

namespace {

void appendUtf8(std::string& out, uint32_t code)
{
    if (code < 0x80) {
        out.push_back(static_cast<char>(code));
    } else if (code < 0x800) {
        out.push_back(static_cast<char>(0xC0 | (code >> 6)));
        out.push_back(static_cast<char>(0x80 | (code & 0x3F)));
    } else if (code < 0x10000) {
        out.push_back(static_cast<char>(0xE0 | (code >> 12)));
        out.push_back(static_cast<char>(0x80 | ((code >> 6) & 0x3F)));
        out.push_back(static_cast<char>(0x80 | (code & 0x3F)));
    } else if (code < 0x110000) {
        out.push_back(static_cast<char>(0xF0 | (code >> 18)));
        out.push_back(static_cast<char>(0x80 | ((code >> 12) & 0x3F)));
        out.push_back(static_cast<char>(0x80 | ((code >> 6) & 0x3F)));
        out.push_back(static_cast<char>(0x80 | (code & 0x3F)));
    }
}

std::optional<std::string> decodeText(std::string_view text)
{
    std::string out;
    for (size_t i = 0; i < text.size(); ++i) {
        if (text[i] != '&') {
            out.push_back(text[i]);
            continue;
        }
        const auto semicolon = text.find(';', i);
        if (semicolon == std::string_view::npos || semicolon - i > 10)
            return std::nullopt;
        const auto entity = text.substr(i + 1, semicolon - i - 1);
        if (entity == "amp")
            out.push_back('&');
        else if (entity == "lt")
            out.push_back('<');
        else if (entity == "gt")
            out.push_back('>');
        else if (entity == "quot")
            out.push_back('"');
        else if (entity == "apos")
            out.push_back('\'');
        else if (entity.starts_with("#x") || entity.starts_with("#")) {
            const bool hex = entity.starts_with("#x");
            const auto digits = entity.substr(hex ? 2 : 1);
            uint32_t code = 0;
            for (const char c : digits) {
                const int value = c >= '0' && c <= '9' ? c - '0'
                    : hex && c >= 'a' && c <= 'f'      ? c - 'a' + 10
                    : hex && c >= 'A' && c <= 'F'      ? c - 'A' + 10
                                                       : -1;
                if (value < 0 || code > 0x10FFFF)
                    return std::nullopt;
                code = code * (hex ? 16u : 10u) + static_cast<uint32_t>(value);
            }
            if (digits.empty())
                return std::nullopt;
            appendUtf8(out, code);
        } else {
            return std::nullopt;
        }
        i = semicolon;
    }
    return out;
}

// Skips comments and blanks from `at`.
size_t skipSpace(std::string_view xml, size_t at)
{
    while (at < xml.size()) {
        if (xml[at] == ' ' || xml[at] == '\t' || xml[at] == '\n' || xml[at] == '\r') {
            ++at;
        } else if (xml.substr(at, 4) == "<!--") {
            const auto end = xml.find("-->", at + 4);
            at = end == std::string_view::npos ? xml.size() : end + 3;
        } else {
            break;
        }
    }
    return at;
}

// The end of the element that starts at `at` (just past its closing tag), for
// skipping values we do not read; nested dictionaries and arrays are counted.
size_t skipElement(std::string_view xml, size_t at)
{
    int depth = 0;
    while (at < xml.size()) {
        const auto open = xml.find('<', at);
        if (open == std::string_view::npos)
            return xml.size();
        const auto close = xml.find('>', open);
        if (close == std::string_view::npos)
            return xml.size();
        const auto tag = xml.substr(open, close - open + 1);
        at = close + 1;
        if (tag.ends_with("/>"))
            ; // an empty element such as <true/>
        else if (tag.starts_with("</"))
            --depth;
        else
            ++depth;
        if (depth <= 0)
            return at;
    }
    return xml.size();
}

} // namespace

std::optional<std::string> topLevelString(std::string_view xml, std::string_view key)
{
    const auto dict = xml.find("<dict>");
    if (dict == std::string_view::npos || xml.find("<plist") == std::string_view::npos)
        return std::nullopt;
    size_t at = dict + 6;
    while (true) {
        at = skipSpace(xml, at);
        if (at >= xml.size() || xml.substr(at, 7) == "</dict>")
            return std::nullopt;
        if (xml.substr(at, 5) != "<key>")
            return std::nullopt;
        const auto keyEnd = xml.find("</key>", at);
        if (keyEnd == std::string_view::npos)
            return std::nullopt;
        const auto name = decodeText(xml.substr(at + 5, keyEnd - at - 5));
        at = skipSpace(xml, keyEnd + 6);
        if (name && *name == key) {
            if (xml.substr(at, 8) != "<string>")
                return std::nullopt;
            const auto valueEnd = xml.find("</string>", at);
            if (valueEnd == std::string_view::npos)
                return std::nullopt;
            return decodeText(xml.substr(at + 8, valueEnd - at - 8));
        }
        at = skipElement(xml, at);
    }
}

} // namespace vexel::PlistReader
