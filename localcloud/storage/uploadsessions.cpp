// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "localcloud/storage/uploadsessions.h"

#include "localcloud/base/encoding.h"
#include "localcloud/limits.h"

#include <filesystem>

#include <unistd.h>

namespace localcloud {

namespace {

constexpr std::size_t idLength = 40;

Sqlite& withTable(Sqlite& sqlite)
{
    sqlite.execute("CREATE TABLE IF NOT EXISTS uploads (id TEXT NOT NULL UNIQUE, begun INTEGER NOT NULL,"
                   "  finished INTEGER NOT NULL, json TEXT NOT NULL)");
    return sqlite;
}

Json optionalJson(const std::optional<std::int64_t>& number)
{
    return number ? Json(*number) : Json();
}

std::optional<std::int64_t> optionalNumber(const Json& json)
{
    return json.is_null() ? std::nullopt : std::optional(json.get<std::int64_t>());
}

Json toJson(const UploadSession& session)
{
    const NewObject& object = session.object;
    const Preconditions& conditions = object.conditions;
    return {{"name", object.name},
            {"attributes", object.attributes},
            {"public", object.isPublic},
            {"md5", object.md5},
            {"crc32c", object.crc32c},
            {"total", optionalJson(session.total)},
            {"conditions",
             {optionalJson(conditions.generation), optionalJson(conditions.notGeneration),
              optionalJson(conditions.metageneration), optionalJson(conditions.notMetageneration)}}};
}

void fromJson(const Json& json, UploadSession& session)
{
    const Json& conditions = json.at("conditions");
    session.object = {json.at("name"),
                      json.at("attributes"),
                      json.at("public"),
                      {optionalNumber(conditions[0]), optionalNumber(conditions[1]),
                       optionalNumber(conditions[2]), optionalNumber(conditions[3])},
                      json.at("md5"),
                      json.at("crc32c")};
    session.total = optionalNumber(json.at("total"));
}

} // namespace

UploadSessions::UploadSessions(Sqlite& sqlite, ObjectStore& objects, std::string folder)
    : m_sqlite(withTable(sqlite))
    , m_objects(objects)
    , m_folder(std::move(folder))
    , m_insert(sqlite, "INSERT INTO uploads VALUES (?, ?, 0, ?)")
    , m_find(sqlite, "SELECT finished, json FROM uploads WHERE id = ?")
    , m_finish(sqlite, "UPDATE uploads SET finished = 1 WHERE id = ?")
    , m_remove(sqlite, "DELETE FROM uploads WHERE id = ?")
    , m_surplus(sqlite, "SELECT id FROM uploads ORDER BY rowid DESC LIMIT -1 OFFSET ?")
{
    removeOld();
    removeOrphans();
}

UploadFile UploadSessions::newFile()
{
    return UploadFile::create(path("single-" + std::to_string(++m_files)));
}

std::shared_ptr<UploadSession> UploadSessions::begin(const NewObject& object,
                                                     std::optional<std::int64_t> total)
{
    makeRoom();
    const std::string id = randomName(idLength);
    auto session = std::make_shared<UploadSession>(UploadSession{id, object, total, {}, nullptr});
    session->file = UploadFile::create(path(id));
    syncFolder(m_folder);
    m_insert.run(id, unixNow(), toJson(*session).dump());
    m_open.emplace(id, session);
    return session;
}

std::shared_ptr<UploadSession> UploadSessions::find(const std::string& id)
{
    const auto open = m_open.find(id);
    return open != m_open.end() ? open->second : read(id);
}

Object UploadSessions::finish(UploadSession& session)
{
    Object object = m_objects.commit(session.object, *session.file, [&] { m_finish.run(session.id); });
    session.file.reset();
    m_open.erase(session.id);
    return object;
}

void UploadSessions::cancel(const std::string& id)
{
    m_remove.run(id);
    const auto open = m_open.find(id);
    if (open != m_open.end()) {
        open->second->writer = nullptr;
        m_open.erase(open);
    }
    ::unlink(path(id).c_str());
}

// One that an earlier process began, or that is finished.
std::shared_ptr<UploadSession> UploadSessions::read(const std::string& id)
{
    Rows rows = m_find.rows(id);
    if (!rows.next())
        return {};
    auto session = std::make_shared<UploadSession>();
    session->id = id;
    fromJson(Json::parse(rows.text(1)), *session);
    if (rows.number(0) == 0) {
        session->file = UploadFile::reopen(path(id));
        m_open.emplace(id, session);
    }
    return session;
}

std::string UploadSessions::path(const std::string& id) const
{
    return m_folder + "/" + id;
}

void UploadSessions::makeRoom()
{
    std::vector<std::string> surplus;
    for (Rows rows = m_surplus.rows(static_cast<std::int64_t>(limits::uploadSessions - 1)); rows.next();)
        surplus.emplace_back(rows.text(0));
    for (const std::string& id : surplus)
        cancel(id);
}

void UploadSessions::removeOld()
{
    const UnixMs oldest = unixNow() - std::chrono::milliseconds(limits::uploadAge).count();
    Statement(m_sqlite, "DELETE FROM uploads WHERE begun < ?").run(oldest);
}

void UploadSessions::removeOrphans()
{
    for (const auto& entry : std::filesystem::directory_iterator(m_folder)) {
        Rows rows = m_find.rows(entry.path().filename().string());
        if (!rows.next() || rows.number(0) != 0)
            std::filesystem::remove(entry.path());
    }
}

} // namespace localcloud
