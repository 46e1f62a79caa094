#include "history/Sqlite.h"

#include <algorithm>
#include <climits>

namespace vexel::Sqlite {

namespace {

StepFunction stepFunction = ::sqlite3_step;

} // namespace

void replaceStep(StepFunction step)
{
    stepFunction = step != nullptr ? step : ::sqlite3_step;
}

HistoryError failure(sqlite3* db, int result)
{
    // The connection's message belongs to the latest call on it, which may not be this failure.
    const bool hasMessage = db != nullptr && (::sqlite3_errcode(db) & 0xff) == (result & 0xff);
    return HistoryError(HistoryError::Kind::sql, hasMessage ? ::sqlite3_errmsg(db) : ::sqlite3_errstr(result));
}

bool transient(int result)
{
    const int primary = result & 0xff;
    return primary == SQLITE_BUSY || primary == SQLITE_LOCKED || primary == SQLITE_READONLY;
}

void Database::exec(const char* sql) const
{
    char* error = nullptr;
    const int result = ::sqlite3_exec(m_handle, sql, nullptr, nullptr, &error);
    if (result == SQLITE_OK)
        return;
    const std::string message = error != nullptr ? error : "?";
    ::sqlite3_free(error);
    throw HistoryError(HistoryError::Kind::sql, message);
}

Statement::Statement(sqlite3* db, const std::string& sql)
{
    if (::sqlite3_prepare_v2(db, sql.c_str(), -1, &m_statement, nullptr) != SQLITE_OK) {
        ::sqlite3_finalize(m_statement);
        m_statement = nullptr;
        throw HistoryError(HistoryError::Kind::sql, ::sqlite3_errmsg(db));
    }
}

void Statement::reset() const
{
    ::sqlite3_reset(m_statement);
    ::sqlite3_clear_bindings(m_statement);
}

void Statement::check(int result) const
{
    if (result != SQLITE_OK)
        throw failure(::sqlite3_db_handle(m_statement), result);
}

void Statement::bind(int index, double value) const
{
    check(::sqlite3_bind_double(m_statement, index, value));
}

void Statement::bind(int index, long long value) const
{
    check(::sqlite3_bind_int64(m_statement, index, value));
}

void Statement::bind(int index, const std::string& value) const
{
    // Text longer than SQLite's limit (a billion bytes) is refused: "string or blob too big".
    const auto length = static_cast<int>(std::min<size_t>(value.size(), INT_MAX));
    check(::sqlite3_bind_text(m_statement, index, value.c_str(), length, SQLITE_TRANSIENT));
}

void Statement::bind(int index, std::optional<double> value) const
{
    check(value ? ::sqlite3_bind_double(m_statement, index, *value) : ::sqlite3_bind_null(m_statement, index));
}

void Statement::run() const
{
    const int result = stepFunction(m_statement);
    ::sqlite3_reset(m_statement);
    if (result != SQLITE_ROW && result != SQLITE_DONE)
        throw HistoryError(HistoryError::Kind::sql, "step " + std::to_string(result));
}

bool Statement::next() const
{
    const int result = stepFunction(m_statement);
    if (result == SQLITE_ROW)
        return true;
    if (result == SQLITE_DONE)
        return false;
    throw failure(::sqlite3_db_handle(m_statement), result);
}

std::optional<double> Statement::optionalReal(int column) const
{
    if (isNull(column))
        return std::nullopt;
    return real(column);
}

std::string Statement::text(int column) const
{
    const auto* bytes = ::sqlite3_column_text(m_statement, column);
    return bytes == nullptr ? std::string() : std::string(reinterpret_cast<const char*>(bytes));
}

} // namespace vexel::Sqlite
