// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "localcloud/storage/objectstore.h"

#include "localcloud/base/encoding.h"
#include "localcloud/http/serviceerror.h"

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <system_error>
#include <unordered_set>

#include <fcntl.h>
#include <unistd.h>

namespace localcloud {

namespace {

Sqlite& withTable(Sqlite& sqlite)
{
    sqlite.execute(
        "CREATE TABLE IF NOT EXISTS objects ("
        "  name TEXT PRIMARY KEY, generation INTEGER NOT NULL, metageneration INTEGER NOT NULL,"
        "  size INTEGER NOT NULL, md5 TEXT NOT NULL, crc32c TEXT NOT NULL, created INTEGER NOT NULL,"
        "  updated INTEGER NOT NULL, public INTEGER NOT NULL, attributes TEXT NOT NULL) WITHOUT ROWID");
    return sqlite;
}

Object objectOf(const Rows& row)
{
    return {
        std::string(row.text(0)), row.number(1), row.number(2), row.number(3),      std::string(row.text(4)),
        std::string(row.text(5)), row.number(6), row.number(7), row.number(8) != 0, Json::parse(row.text(9))};
}

void checkHash(const std::string& wanted, const std::string& found, const std::string& kind)
{
    if (!wanted.empty() && wanted != found)
        refuse(400, "invalid",
               "Provided " + kind + " hash \"" + percentEncode(wanted, "+/=") +
                   "\" doesn't match calculated " + kind + " hash \"" + found + "\".");
}

} // namespace

ObjectStore::ObjectStore(Sqlite& sqlite, std::string folder)
    : m_sqlite(withTable(sqlite))
    , m_folder(std::move(folder))
    , m_find(sqlite, "SELECT * FROM objects WHERE name = ?")
    , m_list(sqlite, "SELECT * FROM objects WHERE name >= ? AND name < ? ORDER BY name LIMIT ?")
    , m_put(sqlite, "INSERT OR REPLACE INTO objects VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?)")
    , m_remove(sqlite, "DELETE FROM objects WHERE name = ?")
{
    removeOrphans();
}

std::optional<Object> ObjectStore::find(const std::string& name)
{
    Rows rows = m_find.rows(name);
    return rows.next() ? std::optional(objectOf(rows)) : std::nullopt;
}

File ObjectStore::open(const Object& object) const
{
    return {path(object.generation), O_RDONLY};
}

ListPage ObjectStore::list(const ListQuery& query)
{
    ListPage page;
    std::string start = query.start;
    std::string end = behindPrefix(query.prefix);
    if (!query.end.empty())
        end = std::min(end, query.end);
    int left = query.maxResults;
    for (bool rolledUp = true; rolledUp;) {
        rolledUp = false;
        Rows rows = m_list.rows(start, end, left + 1);
        while (!rolledUp && rows.next()) {
            const std::string name(rows.text(0));
            if (left-- == 0) {
                page.next = name;
                return page;
            }
            const std::size_t mark =
                query.delimiter.empty() ? std::string::npos : name.find(query.delimiter, query.prefix.size());
            if (mark == std::string::npos) {
                page.objects.push_back(objectOf(rows));
            } else { // and goes on behind everything below it
                page.prefixes.push_back(name.substr(0, mark + query.delimiter.size()));
                start = behindPrefix(page.prefixes.back());
                rolledUp = true;
            }
        }
    }
    return page;
}

Object ObjectStore::commit(const NewObject& object, const UploadFile& upload,
                           const std::function<void()>& alongside)
{
    const std::optional<Object> old = findForWriting(object);
    checkHash(object.md5, upload.md5(), "MD5");
    checkHash(object.crc32c, upload.crc32c(), "CRC32C");
    const UnixMs now = unixNow();
    Object result{object.name,     nextGeneration(), 1,   upload.size(),
                  upload.md5(),    upload.crc32c(),  now, now,
                  object.isPublic, object.attributes};
    upload.sync();
    // The upload keeps its file until the rows say that it is an object's: a kill in between loses nothing.
    addFile(upload.path(), result.generation);
    result = place(std::move(result), old, alongside);
    ::unlink(upload.path().c_str());
    return result;
}

Object ObjectStore::copy(const Object& source, const NewObject& object)
{
    const std::optional<Object> old = findForWriting(object);
    Object result = source;
    result.name = object.name;
    result.generation = nextGeneration();
    result.metageneration = 1;
    result.created = result.updated = unixNow();
    result.isPublic = object.isPublic;
    result.attributes = object.attributes;
    addFile(path(source.generation), result.generation);
    return place(std::move(result), old, {});
}

Object ObjectStore::setAttributes(Object object, Json attributes)
{
    object.attributes = std::move(attributes);
    ++object.metageneration;
    object.updated = unixNow();
    putRow(object);
    return object;
}

void ObjectStore::remove(const Object& object)
{
    m_remove.run(object.name);
    removeFile(object.generation);
}

std::string ObjectStore::path(std::int64_t generation) const
{
    return m_folder + "/" + std::to_string(generation);
}

std::int64_t ObjectStore::nextGeneration()
{
    m_lastGeneration = std::max(m_lastGeneration + 1, unixNow() * 1000);
    return m_lastGeneration;
}

std::optional<Object> ObjectStore::findForWriting(const NewObject& object)
{
    std::optional<Object> old = find(object.name);
    object.conditions.checkForWriting(old ? &*old : nullptr);
    return old;
}

// Writes the row of an object whose file is in place.
Object ObjectStore::place(Object object, const std::optional<Object>& old,
                          const std::function<void()>& alongside)
{
    Transaction transaction(m_sqlite);
    putRow(object);
    if (alongside)
        alongside();
    transaction.commit();
    if (old)
        removeFile(old->generation);
    return object;
}

void ObjectStore::putRow(const Object& object)
{
    m_put.run(object.name, object.generation, object.metageneration, object.size, object.md5, object.crc32c,
              object.created, object.updated, std::int64_t(object.isPublic), object.attributes.dump());
}

// Content never changes, so that names may share it.
void ObjectStore::addFile(const std::string& content, std::int64_t generation) const
{
    if (::link(content.c_str(), path(generation).c_str()) != 0)
        throw std::system_error(errno, std::generic_category(), "cannot make the file of an object");
    syncFolder(m_folder);
}

// One that is still being sent stays readable until that is done.
void ObjectStore::removeFile(std::int64_t generation) const
{
    ::unlink(path(generation).c_str());
}

void ObjectStore::removeOrphans()
{
    std::unordered_set<std::string> known;
    Statement all(m_sqlite, "SELECT generation FROM objects");
    for (Rows rows = all.rows(); rows.next();) {
        known.insert(std::to_string(rows.number(0)));
        m_lastGeneration = std::max(m_lastGeneration, rows.number(0));
    }
    for (const auto& entry : std::filesystem::directory_iterator(m_folder)) {
        if (known.count(entry.path().filename().string()) == 0)
            std::filesystem::remove(entry.path());
    }
}

} // namespace localcloud
