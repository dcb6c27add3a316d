// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "localcloud/base/sqlite.h"
#include "localcloud/database/value.h"

#include <string>
#include <utility>
#include <vector>

namespace localcloud {

/// The tree of the realtime database: a row for each leaf, with its place. What fails throws
/// std::runtime_error.
class TreeStore
{
public:
    explicit TreeStore(Sqlite& sqlite);

    /// What is at a place, as it is kept; null when there is nothing.
    Json read(const std::string& location);
    /// An object with a member of value true for each child of a place; a leaf's value; null.
    Json readKeys(const std::string& location);
    /// Puts normalized values at places of which none is within another, in place of what is there; all or
    /// none.
    void write(const std::vector<std::pair<std::string, Json>>& values);

private:
    void clear(const std::string& location);
    void clearAbove(std::string location);

    Sqlite& m_sqlite;
    Statement m_readLeaf;
    Statement m_readBelow;
    Statement m_firstBelow;
    Statement m_insert;
    Statement m_removeLeaf;
    Statement m_removeBelow;
};

} // namespace localcloud
