// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "localcloud/base/sqlite.h"

#include <sqlite3.h>

#include <stdexcept>

namespace localcloud {

namespace {

[[noreturn]] void fail(sqlite3* handle)
{
    throw std::runtime_error(std::string("database: ") + sqlite3_errmsg(handle));
}

} // namespace

void Sqlite::Close::operator()(sqlite3* handle) const
{
    sqlite3_close(handle);
}

Sqlite::Sqlite(const std::string& file)
{
    sqlite3* handle = nullptr;
    const int result = sqlite3_open(file.c_str(), &handle);
    m_handle.reset(handle);
    if (result != SQLITE_OK)
        fail(handle);
    execute("PRAGMA locking_mode = EXCLUSIVE; PRAGMA journal_mode = WAL; PRAGMA synchronous = FULL;"
            "BEGIN IMMEDIATE; COMMIT;"); // takes the lock
}

void Sqlite::execute(const char* sql)
{
    if (sqlite3_exec(handle(), sql, nullptr, nullptr, nullptr) != SQLITE_OK)
        fail(handle());
}

Transaction::Transaction(Sqlite& sqlite)
    : m_sqlite(sqlite)
{
    m_sqlite.execute("BEGIN");
}

Transaction::~Transaction()
{
    if (m_open)
        sqlite3_exec(m_sqlite.handle(), "ROLLBACK", nullptr, nullptr, nullptr);
}

void Transaction::commit()
{
    m_sqlite.execute("COMMIT");
    m_open = false;
}

Rows::Rows(sqlite3_stmt* statement)
    : m_statement(statement)
{
}

Rows::~Rows()
{
    sqlite3_reset(m_statement);
}

bool Rows::next()
{
    const int result = sqlite3_step(m_statement);
    if (result != SQLITE_ROW && result != SQLITE_DONE)
        fail(sqlite3_db_handle(m_statement));
    return result == SQLITE_ROW;
}

std::int64_t Rows::number(int column) const
{
    return sqlite3_column_int64(m_statement, column);
}

std::string_view Rows::text(int column) const
{
    const void* bytes = sqlite3_column_blob(m_statement, column);
    const int size = sqlite3_column_bytes(m_statement, column);
    return {static_cast<const char*>(bytes), static_cast<std::size_t>(size)};
}

void Statement::Finalize::operator()(sqlite3_stmt* statement) const
{
    sqlite3_finalize(statement);
}

Statement::Statement(const Sqlite& sqlite, const char* sql)
{
    sqlite3_stmt* statement = nullptr;
    if (sqlite3_prepare_v3(sqlite.handle(), sql, -1, SQLITE_PREPARE_PERSISTENT, &statement, nullptr) !=
        SQLITE_OK)
        fail(sqlite.handle());
    m_statement.reset(statement);
}

void Statement::bind(int index, std::string_view text)
{
    const int result = sqlite3_bind_text64(m_statement.get(), index, text.empty() ? "" : text.data(),
                                           text.size(), SQLITE_TRANSIENT, SQLITE_UTF8);
    if (result != SQLITE_OK)
        fail(sqlite3_db_handle(m_statement.get()));
}

void Statement::bind(int index, std::int64_t number)
{
    if (sqlite3_bind_int64(m_statement.get(), index, number) != SQLITE_OK)
        fail(sqlite3_db_handle(m_statement.get()));
}

} // namespace localcloud
