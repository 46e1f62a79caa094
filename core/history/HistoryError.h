#pragma once

#include <stdexcept>
#include <string>

namespace vexel {

// The one error of the history store: the file would not open, or a statement failed.
class HistoryError : public std::runtime_error {
public:
    enum class Kind { open, sql };

    HistoryError(Kind kind, const std::string& message)
        : std::runtime_error((kind == Kind::open ? "Couldn't open the history: " : "History error: ") + message)
        , m_kind(kind)
        , m_message(message)
    {
    }

    [[nodiscard]] Kind kind() const { return m_kind; }
    // SQLite's own words, without the prefix of what().
    [[nodiscard]] const std::string& message() const { return m_message; }

private:
    Kind m_kind;
    std::string m_message;
};

} // namespace vexel
