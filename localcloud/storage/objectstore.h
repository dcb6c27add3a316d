// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "localcloud/base/file.h"
#include "localcloud/base/sqlite.h"
#include "localcloud/storage/listing.h"
#include "localcloud/storage/object.h"
#include "localcloud/storage/preconditions.h"
#include "localcloud/storage/uploadfile.h"

#include <functional>
#include <optional>
#include <string>

namespace localcloud {

/// What is to become of the bytes that a client uploads.
struct NewObject
{
    std::string name;
    Json attributes = Json::object();
    bool isPublic = false;
    Preconditions conditions;
    std::string md5;    ///< what the content must have; empty: anything
    std::string crc32c; ///< likewise
};

/// The objects of the bucket: a row of the database and a file each.
///
/// A file is named by its generation, so no name that a client chose reaches the file system. It is on the
/// disk under its final name before the row that speaks of it is; what no row speaks of is removed at the
/// next start. What fails throws std::runtime_error (std::system_error); nothing has changed then.
class ObjectStore
{
public:
    /// Keeps the files in `folder`, which must exist.
    ObjectStore(Sqlite& sqlite, std::string folder);

    std::optional<Object> find(const std::string& name);
    /// The content of an object that was found just now.
    File open(const Object& object) const;
    ListPage list(const ListQuery& query);

    /// Makes the uploaded file the content of an object. `alongside` writes whatever is to become true with
    /// it. Throws a Refusal when a precondition does not hold or a hash differs.
    Object commit(const NewObject& object, const UploadFile& upload,
                  const std::function<void()>& alongside = {});
    /// Makes a copy of `source`, which was found just now, with the new object's name and attributes; throws
    /// a Refusal like commit().
    Object copy(const Object& source, const NewObject& object);
    /// Replaces the attributes of an object that was found just now; the result has the next metageneration.
    Object setAttributes(Object object, Json attributes);
    /// Removes an object that was found just now.
    void remove(const Object& object);

private:
    std::string path(std::int64_t generation) const;
    std::int64_t nextGeneration();
    Object place(Object object, const std::optional<Object>& old, const std::function<void()>& alongside);
    std::optional<Object> findForWriting(const NewObject& object);
    void putRow(const Object& object);
    void addFile(const std::string& content, std::int64_t generation) const;
    void removeFile(std::int64_t generation) const;
    void removeOrphans();

    Sqlite& m_sqlite;
    std::string m_folder;
    std::int64_t m_lastGeneration = 0;
    Statement m_find;
    Statement m_list;
    Statement m_put;
    Statement m_remove;
};

} // namespace localcloud
