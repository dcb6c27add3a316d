// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "localcloud/storage/singleupload.h"

#include "localcloud/http/serviceerror.h"
#include "localcloud/storage/newobject.h"

#include <unistd.h>

namespace localcloud {

namespace {

std::string boundaryOf(const RequestHead& head)
{
    std::string boundary = MultipartReader::boundaryOf(head.headers.find("Content-Type"));
    if (boundary.empty())
        refuse(400, "badRequest", "The request is not multipart/related with a boundary.");
    return boundary;
}

[[noreturn]] void refuseBody(const std::string& why)
{
    refuse(400, "badContent", "Malformed multipart body. " + why);
}

} // namespace

SingleUpload::SingleUpload(UploadFile file, ObjectStore& objects, const RequestHead& head,
                           const BucketPlace& place)
    : m_file(std::move(file))
    , m_head(head)
    , m_objects(objects)
    , m_place(place)
{
}

SingleUpload::~SingleUpload()
{
    ::unlink(m_file.path().c_str());
}

Answer SingleUpload::commit(const NewObject& object)
{
    return jsonAnswer(200, objectResource(m_objects.commit(object, m_file), m_place).dump());
}

MediaUpload::MediaUpload(UploadFile file, ObjectStore& objects, const RequestHead& head,
                         const BucketPlace& place)
    : SingleUpload(std::move(file), objects, head, place)
    , m_object(newObject(head, {}, std::string(head.headers.find("Content-Type"))))
{
}

void MediaUpload::take(std::string_view piece)
{
    m_file.append(piece);
}

Answer MediaUpload::finish()
{
    return commit(m_object);
}

MultipartUpload::MultipartUpload(UploadFile file, ObjectStore& objects, const RequestHead& head,
                                 const BucketPlace& place)
    : SingleUpload(std::move(file), objects, head, place)
    , m_reader(boundaryOf(head), [this](std::string_view content) { m_file.append(content); })
{
}

void MultipartUpload::take(std::string_view piece)
{
    try {
        m_reader.take(piece);
    } catch (const MultipartReader::Fault& fault) {
        refuseBody(fault.what());
    }
}

Answer MultipartUpload::finish()
{
    if (!m_reader.isComplete())
        refuseBody("It ends without its last boundary.");
    return commit(newObject(m_head, m_reader.metadata(), m_reader.contentType()));
}

} // namespace localcloud
