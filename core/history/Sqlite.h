#pragma once

#include "history/HistoryError.h"

#include <sqlite3.h>

#include <optional>
#include <string>
#include <utility>

namespace vexel::Sqlite {

// How long a connection waits for another one: a writer holding its locks, or
// recovering its log after a crash.
constexpr int waitMilliseconds = 2000;

// Answers that mean another connection holds the file for a moment. A reader
// that cannot write the log's index answers "read-only" while a writer
// recovers, and waits that out as it waits out locks.
[[nodiscard]] bool transient(int result);

// Every statement steps through this function. It is sqlite3_step; tests
// put a function of their own here to make a chosen step fail, and give
// nullptr to restore it. Not for use while statements run on other threads.
using StepFunction = int (*)(sqlite3_stmt*);
void replaceStep(StepFunction step);

// The error of a statement that failed with `result` on `db`: SQLite's
// message for the connection, or the text of `result` when the connection's
// latest error is another one.
[[nodiscard]] HistoryError failure(sqlite3* db, int result);

// Owns a connection: closed when it goes.
class Database {
public:
    Database() = default;
    explicit Database(sqlite3* handle)
        : m_handle(handle)
    {
    }
    ~Database() { ::sqlite3_close(m_handle); }
    Database(Database&& other) noexcept
        : m_handle(std::exchange(other.m_handle, nullptr))
    {
    }
    Database& operator=(Database&& other) noexcept
    {
        std::swap(m_handle, other.m_handle);
        return *this;
    }
    Database(const Database&) = delete;
    Database& operator=(const Database&) = delete;

    [[nodiscard]] sqlite3* get() const { return m_handle; }

    // Runs a script; raises sql with SQLite's message ("?" when it gives none).
    void exec(const char* sql) const;

private:
    sqlite3* m_handle = nullptr;
};

// Owns a prepared statement: finalized when it goes. Preparing raises sql
// with the connection's message.
class Statement {
public:
    Statement() = default;
    Statement(sqlite3* db, const std::string& sql);
    ~Statement() { ::sqlite3_finalize(m_statement); }
    Statement(Statement&& other) noexcept
        : m_statement(std::exchange(other.m_statement, nullptr))
    {
    }
    Statement& operator=(Statement&& other) noexcept
    {
        std::swap(m_statement, other.m_statement);
        return *this;
    }
    Statement(const Statement&) = delete;
    Statement& operator=(const Statement&) = delete;

    [[nodiscard]] sqlite3_stmt* get() const { return m_statement; }
    [[nodiscard]] explicit operator bool() const { return m_statement != nullptr; }

    void reset() const;
    // Binds a parameter; raises sql when SQLite refuses (a bad index, too much text).
    void bind(int index, double value) const;
    void bind(int index, long long value) const;
    void bind(int index, const std::string& value) const;
    void bind(int index, std::optional<double> value) const;
    // Steps a write and resets; raises sql "step N" for anything but a row or done.
    void run() const;
    // Steps a read: true at a row, false when the rows are done; raises sql
    // with SQLite's message when the step fails, so that a failed read never
    // passes for the end of the rows.
    [[nodiscard]] bool next() const;

    [[nodiscard]] double real(int column) const { return ::sqlite3_column_double(m_statement, column); }
    [[nodiscard]] long long integer(int column) const { return ::sqlite3_column_int64(m_statement, column); }
    [[nodiscard]] std::optional<double> optionalReal(int column) const;
    [[nodiscard]] std::string text(int column) const;
    [[nodiscard]] bool isNull(int column) const { return ::sqlite3_column_type(m_statement, column) == SQLITE_NULL; }

private:
    void check(int result) const;

    sqlite3_stmt* m_statement = nullptr;
};

} // namespace vexel::Sqlite
