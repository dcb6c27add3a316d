// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "localcloud/base/sqlite.h"

#include <optional>
#include <string>

namespace localcloud {

/// A person who has signed up.
struct Account
{
    std::string id; ///< 28 letters and digits
    std::string email;
    std::string passwordHash;
};

/// The people who have signed up, by their e-mail. What fails throws std::runtime_error.
class AccountStore
{
public:
    explicit AccountStore(Sqlite& sqlite);

    std::optional<Account> find(const std::string& email);
    /// Adds an account whose e-mail nobody has yet.
    void add(const Account& account);

private:
    Statement m_find;
    Statement m_add;
};

} // namespace localcloud
