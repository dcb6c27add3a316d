// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "localcloud/identity/accountstore.h"

namespace localcloud {

namespace {

Sqlite& withTable(Sqlite& sqlite)
{
    sqlite.execute("CREATE TABLE IF NOT EXISTS accounts (id TEXT NOT NULL UNIQUE, email TEXT PRIMARY KEY,"
                   "  password TEXT NOT NULL) WITHOUT ROWID");
    return sqlite;
}

} // namespace

AccountStore::AccountStore(Sqlite& sqlite)
    : m_find(withTable(sqlite), "SELECT id, email, password FROM accounts WHERE email = ?")
    , m_add(sqlite, "INSERT INTO accounts VALUES (?, ?, ?)")
{
}

std::optional<Account> AccountStore::find(const std::string& email)
{
    Rows rows = m_find.rows(email);
    if (!rows.next())
        return {};
    return Account{std::string(rows.text(0)), std::string(rows.text(1)), std::string(rows.text(2))};
}

void AccountStore::add(const Account& account)
{
    m_add.run(account.id, account.email, account.passwordHash);
}

} // namespace localcloud
