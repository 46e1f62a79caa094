#pragma once

#include <optional>
#include <string>
#include <utility>
#include <vector>

// Marks an English text of the core that the window shows in the user's
// language: VEXEL_WORDS("vexel::Vexel", "Cool"), always in the window's
// context. The command line and the MCP server print the text as it stands;
// lupdate collects it as an alias of QT_TRANSLATE_NOOP.
#define VEXEL_WORDS(context, text) text
// The same for a text with a count: VEXEL_COUNTED("vexel::Vexel", "%n helper
// process(es)"). Translators write its singular and plural forms.
#define VEXEL_COUNTED(context, text) text

namespace vexel {

// A sentence for people, kept as its English pattern and the values that fill
// it, so the window can say it in the user's language and a report can print
// it in English. The pattern marks its values %1…%9, as Qt's translations do.
struct Sentence {
    struct Value {
        std::string text;
        bool words = false; // a marked text of its own, translated with the sentence
        bool operator==(const Value&) const = default;
    };

    std::string pattern; // a VEXEL_WORDS text: "%1 kept the processor busy for %2 min"
    std::vector<Value> values;
    std::optional<int> count; // fills %n of a VEXEL_COUNTED pattern and picks its form

    Sentence() = default;
    Sentence(std::string english, std::vector<Value> filling = {}, std::optional<int> counted = std::nullopt)
        : pattern(std::move(english))
        , values(std::move(filling))
        , count(counted)
    {
    }

    // Words that are not ours to translate (the system's, SQLite's), said as they are.
    [[nodiscard]] static Sentence asIs(std::string text) { return {"%1", {{std::move(text)}}}; }

    // The pattern with its values in place, in English: "process(es)" reads
    // "process" for a count of one and "processes" for any other.
    [[nodiscard]] std::string english() const;

    bool operator==(const Sentence&) const = default;
};

// Sentences said one after the other, as one paragraph.
using Paragraph = std::vector<Sentence>;

// The paragraph in English, its sentences joined by a space.
[[nodiscard]] std::string english(const Paragraph& paragraph);

} // namespace vexel
