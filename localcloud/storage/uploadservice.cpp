// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "localcloud/storage/uploadservice.h"

#include "localcloud/base/encoding.h"
#include "localcloud/http/serviceerror.h"
#include "localcloud/limits.h"
#include "localcloud/storage/newobject.h"
#include "localcloud/storage/resumableexchange.h"
#include "localcloud/storage/singleupload.h"

namespace localcloud {

UploadService::UploadService(UploadSessions& sessions, ObjectStore& objects, const StorageAccess& access,
                             std::string bucket)
    : m_sessions(sessions)
    , m_objects(objects)
    , m_access(access)
    , m_bucket(std::move(bucket))
{
}

std::unique_ptr<Exchange> UploadService::begin(const RequestHead& head, const StoragePath& path)
{
    if (path.kind != StoragePath::Kind::Objects || path.bucket != m_bucket)
        refuse(404, "notFound", "The specified bucket does not exist.");
    if (head.target.has("upload_id")) // the address itself is the right to use it
        return goOn(head);
    if (head.method != "POST")
        refuse(405, "methodNotAllowed", "The specified method is not allowed against this resource.");
    m_access.require(head, WriteStorage);
    const std::string type = head.target.value("uploadType");
    const BucketPlace place{head.base(), m_bucket};
    if (type == "media")
        return std::make_unique<MediaUpload>(m_sessions.newFile(), m_objects, head, place);
    if (type == "multipart")
        return std::make_unique<MultipartUpload>(m_sessions.newFile(), m_objects, head, place);
    if (type == "resumable")
        return beginResumable(head);
    refuse(400, "invalid", "Invalid value for uploadType.");
}

std::unique_ptr<Exchange> UploadService::beginResumable(const RequestHead& head)
{
    return std::make_unique<CollectingExchange>(
        limits::metadataBytes, serviceError(413, "uploadTooLarge", "The metadata is too large."),
        [this, head](const std::string& body) { return sessionBegun(head, body); });
}

Answer UploadService::sessionBegun(const RequestHead& head, const std::string& body)
{
    const NewObject object = newObject(head, body, std::string(head.headers.find("X-Upload-Content-Type")));
    const std::optional<Object> old = m_objects.find(object.name);
    object.conditions.checkForWriting(old ? &*old : nullptr);
    const auto session = m_sessions.begin(object, parseNumber(head.headers.find("X-Upload-Content-Length")));
    const std::string address = head.base() + head.target.path +
                                "?uploadType=resumable&name=" + percentEncode(object.name) +
                                "&upload_id=" + session->id;
    return {200, {{"Location", address}, {"X-GUploader-UploadID", session->id}}, {}};
}

std::unique_ptr<Exchange> UploadService::goOn(const RequestHead& head)
{
    const std::string id = head.target.value("upload_id");
    const std::shared_ptr<UploadSession> session = m_sessions.find(id);
    if (!session)
        refuse(404, "notFound", "No such upload session.");
    const BucketPlace place{head.base(), m_bucket};
    if (head.method == "DELETE") {
        m_sessions.cancel(id);
        return std::make_unique<ReadyExchange>(Answer{499, {}, {}});
    }
    if (head.method != "PUT" && head.method != "POST")
        refuse(405, "methodNotAllowed", "The specified method is not allowed against this resource.");
    if (session->file)
        return std::make_unique<ResumableExchange>(m_sessions, session, head, place);
    const std::optional<Object> object = m_objects.find(session->object.name); // its answer got lost
    if (!object)
        refuse(404, "notFound", "No such object.");
    return std::make_unique<ReadyExchange>(jsonAnswer(200, objectResource(*object, place).dump()));
}

} // namespace localcloud
