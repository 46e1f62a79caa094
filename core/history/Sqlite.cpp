#include "history/Sqlite.h"

namespace vexel::Sqlite {

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

void Statement::bind(int index, double value) const
{
    ::sqlite3_bind_double(m_statement, index, value);
}

void Statement::bind(int index, long long value) const
{
    ::sqlite3_bind_int64(m_statement, index, value);
}

void Statement::bind(int index, const std::string& value) const
{
    ::sqlite3_bind_text(m_statement, index, value.c_str(), static_cast<int>(value.size()), SQLITE_TRANSIENT);
}

void Statement::bind(int index, std::optional<double> value) const
{
    if (value)
        ::sqlite3_bind_double(m_statement, index, *value);
    else
        ::sqlite3_bind_null(m_statement, index);
}

void Statement::run() const
{
    const int result = ::sqlite3_step(m_statement);
    ::sqlite3_reset(m_statement);
    if (result != SQLITE_ROW && result != SQLITE_DONE)
        throw HistoryError(HistoryError::Kind::sql, "step " + std::to_string(result));
}

bool Statement::next() const
{
    return ::sqlite3_step(m_statement) == SQLITE_ROW;
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
