// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

struct sqlite3;
struct sqlite3_stmt;

namespace localcloud {

/// An SQLite database that this process alone uses: write-ahead log, each commit on the disk when it returns.
///
/// What fails throws std::runtime_error. One thread.
class Sqlite
{
public:
    /// Opens or creates `file`. Throws also when another process uses it.
    explicit Sqlite(const std::string& file);

    /// Runs statements that give no rows.
    void execute(const char* sql);

    sqlite3* handle() const { return m_handle.get(); }

private:
    struct Close
    {
        void operator()(sqlite3* handle) const;
    };
    std::unique_ptr<sqlite3, Close> m_handle;
};

/// A set of writes that all happen or, when the object goes without commit(), do not.
class Transaction
{
public:
    explicit Transaction(Sqlite& sqlite);
    Transaction(const Transaction&) = delete;
    Transaction& operator=(const Transaction&) = delete;
    ~Transaction();

    void commit();

private:
    Sqlite& m_sqlite;
    bool m_open = true;
};

class Statement;

/// The rows of one run of a statement; lives shorter than the statement, which it leaves ready for the next.
class Rows
{
public:
    explicit Rows(sqlite3_stmt* statement);
    Rows(const Rows&) = delete;
    Rows& operator=(const Rows&) = delete;
    ~Rows();

    /// Goes to the next row, at first to the first. False behind the last.
    bool next();
    std::int64_t number(int column) const;
    /// Valid until the next row.
    std::string_view text(int column) const;

private:
    sqlite3_stmt* m_statement;
};

/// A prepared statement, to be run any number of times.
class Statement
{
public:
    Statement(const Sqlite& sqlite, const char* sql);

    /// Runs it with these values, texts or numbers, for its parameters.
    template <typename... Values>
    Rows rows(const Values&... values)
    {
        int index = 0;
        (bind(++index, values), ...);
        return Rows(m_statement.get());
    }

    /// Runs it with these values to its end.
    template <typename... Values>
    void run(const Values&... values)
    {
        Rows all = rows(values...);
        while (all.next()) {
        }
    }

private:
    struct Finalize
    {
        void operator()(sqlite3_stmt* statement) const;
    };
    void bind(int index, std::string_view text);
    void bind(int index, std::int64_t number);

    std::unique_ptr<sqlite3_stmt, Finalize> m_statement;
};

} // namespace localcloud
