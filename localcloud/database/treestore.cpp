// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "localcloud/database/treestore.h"

#include "localcloud/database/location.h"

namespace localcloud {

namespace {

Sqlite& withTable(Sqlite& sqlite)
{
    sqlite.execute(
        "CREATE TABLE IF NOT EXISTS tree (location TEXT PRIMARY KEY, value TEXT NOT NULL) WITHOUT ROWID");
    return sqlite;
}

} // namespace

TreeStore::TreeStore(Sqlite& sqlite)
    : m_sqlite(withTable(sqlite))
    , m_readLeaf(sqlite, "SELECT value FROM tree WHERE location = ?")
    , m_readBelow(sqlite, "SELECT location, value FROM tree WHERE location >= ? AND location < ?")
    , m_firstBelow(sqlite,
                   "SELECT location FROM tree WHERE location >= ? AND location < ? ORDER BY location LIMIT 1")
    , m_insert(sqlite, "INSERT OR REPLACE INTO tree VALUES (?, ?)")
    , m_removeLeaf(sqlite, "DELETE FROM tree WHERE location = ?")
    , m_removeBelow(sqlite, "DELETE FROM tree WHERE location >= ? AND location < ?")
{
}

Json TreeStore::read(const std::string& location)
{
    Rows leaf = m_readLeaf.rows(location);
    if (leaf.next())
        return Json::parse(leaf.text(0));
    Json value;
    const std::string first = firstBelow(location);
    const std::string end = behindBelow(location);
    for (Rows rows = m_readBelow.rows(first, end); rows.next();)
        addLeaf(value, rows.text(0).substr(location.size()), Json::parse(rows.text(1)));
    return value;
}

Json TreeStore::readKeys(const std::string& location)
{
    Rows leaf = m_readLeaf.rows(location);
    if (leaf.next())
        return Json::parse(leaf.text(0));
    Json keys;
    std::string from = firstBelow(location);
    const std::string end = behindBelow(location);
    for (;;) { // a step for each child, however much is below it
        Rows rows = m_firstBelow.rows(from, end);
        if (!rows.next())
            return keys;
        const std::string key(keysOf(rows.text(0).substr(location.size())).front());
        const std::string child = childOf(location, key);
        from = rows.text(0) == child ? child + '\0' : behindBelow(child);
        keys[key] = true;
    }
}

void TreeStore::write(const std::vector<std::pair<std::string, Json>>& values)
{
    Transaction transaction(m_sqlite);
    for (const auto& [location, value] : values) {
        clear(location);
        if (!value.is_null())
            clearAbove(location);
        for (const auto& [place, leaf] : leavesOf(value, location))
            m_insert.run(place, leaf.dump());
    }
    transaction.commit();
}

void TreeStore::clear(const std::string& location)
{
    m_removeLeaf.run(location);
    m_removeBelow.run(firstBelow(location), behindBelow(location));
}

// A leaf gives way to what is put below it.
void TreeStore::clearAbove(std::string location)
{
    while (!location.empty()) {
        location.resize(location.rfind('/'));
        m_removeLeaf.run(location);
    }
}

} // namespace localcloud
