// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "localcloud/storage/objectstore.h"

#include <memory>
#include <optional>
#include <string>
#include <unordered_map>

namespace localcloud {

/// A resumable upload: an object that arrives in several requests.
struct UploadSession
{
    std::string id;
    NewObject object;
    std::optional<std::int64_t> total; ///< size of the object, when the client told it at the beginning
    std::optional<UploadFile> file;    ///< nothing: it is finished
    const void* writer = nullptr; ///< the request that may append; a later one takes an earlier one's place
};

/// Files of uploads that are not finished, and the resumable ones among them, which outlive a restart.
///
/// What fails throws std::runtime_error (std::system_error).
class UploadSessions
{
public:
    /// Keeps the files in `folder`, which must exist.
    UploadSessions(Sqlite& sqlite, ObjectStore& objects, std::string folder);

    /// A file for an upload in one request; gone at the next start unless it became an object.
    UploadFile newFile();
    /// Begins a resumable upload. The oldest makes room when there are too many.
    std::shared_ptr<UploadSession> begin(const NewObject& object, std::optional<std::int64_t> total);
    /// Null when there is none.
    std::shared_ptr<UploadSession> find(const std::string& id);
    /// Makes the content that has arrived the object. Throws a Refusal like ObjectStore::commit(); the
    /// session then goes on.
    Object finish(UploadSession& session);
    void cancel(const std::string& id);

private:
    std::shared_ptr<UploadSession> read(const std::string& id);
    std::string path(const std::string& id) const;
    void makeRoom();
    void removeOld();
    void removeOrphans();

    Sqlite& m_sqlite;
    ObjectStore& m_objects;
    std::string m_folder;
    std::int64_t m_files = 0; // names those of uploads in one request
    std::unordered_map<std::string, std::shared_ptr<UploadSession>> m_open;
    Statement m_insert;
    Statement m_find;
    Statement m_finish;
    Statement m_remove;
    Statement m_surplus;
};

} // namespace localcloud
