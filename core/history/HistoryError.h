#pragma once

#include "text/Sentence.h"

#include <stdexcept>
#include <string>

namespace vexel {

// The one error of the history store: the file would not open, or a statement failed.
class HistoryError : public std::runtime_error {
public:
    enum class Kind { open, sql };

    // A failure in SQLite's own words, said after what failed.
    HistoryError(Kind kind, const std::string& sqliteWords)
        : HistoryError(kind,
            Sentence{kind == Kind::open ? VEXEL_WORDS("vexel::Vexel", "Couldn't open the history: %1")
                                        : VEXEL_WORDS("vexel::Vexel", "History error: %1"),
                {{sqliteWords}}})
    {
    }

    // Vexel's own refusal ("… isn't a Vexel history"), in its words.
    HistoryError(Kind kind, Sentence said)
        : std::runtime_error(said.english())
        , m_kind(kind)
        , m_said(std::move(said))
    {
    }

    [[nodiscard]] Kind kind() const { return m_kind; }
    // what() for the window, to be said in the user's language.
    [[nodiscard]] const Sentence& said() const { return m_said; }

    // The failure in words: the history's own sentence, or any other
    // exception's text as it stands.
    [[nodiscard]] static Sentence said(const std::exception& failure)
    {
        if (const auto* history = dynamic_cast<const HistoryError*>(&failure))
            return history->said();
        return Sentence::asIs(failure.what());
    }

private:
    Kind m_kind;
    Sentence m_said;
};

} // namespace vexel
