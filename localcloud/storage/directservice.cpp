// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "localcloud/storage/directservice.h"

#include "localcloud/storage/media.h"
#include "localcloud/storage/signedurl.h"

namespace localcloud {

namespace {

// Everything behind the bucket; "/" may have come as it is or encoded.
std::string objectName(const Target& target)
{
    std::string name = target.segment(1);
    for (std::size_t i = 2; i < target.segments.size(); ++i)
        name += "/" + target.segments[i];
    return name;
}

} // namespace

DirectService::DirectService(ObjectStore& objects, const StorageAccess& access,
                             const Credentials& credentials)
    : m_objects(objects)
    , m_access(access)
    , m_credentials(credentials)
{
}

std::unique_ptr<Exchange> DirectService::begin(const RequestHead& head)
{
    if (head.method != "GET" && head.method != "HEAD")
        throw Refusal{
            xmlError(405, "MethodNotAllowed", "The specified method is not allowed against this resource.")};
    if (head.target.segment(0) != m_credentials.bucket)
        throw Refusal{xmlError(404, "NoSuchBucket", "The specified bucket does not exist.")};
    const std::string name = objectName(head.target);
    const std::optional<Object> object = isObjectName(name) ? m_objects.find(name) : std::nullopt;
    requireRight(head, object);
    if (!object)
        throw Refusal{xmlError(404, "NoSuchKey", "The specified key does not exist.")};
    return std::make_unique<ReadyExchange>(mediaAnswer(m_objects, *object, head));
}

void DirectService::requireRight(const RequestHead& head, const std::optional<Object>& object) const
{
    if (isSigned(head.target))
        return checkSignature(head, m_credentials, unixNow());
    if (object && object->isPublic)
        return;
    if (StorageAccess::isAnonymous(head))
        throw Refusal{
            xmlError(403, "AccessDenied", "Access denied.",
                     "<Details>Anonymous caller does not have storage.objects.get access to the Google "
                     "Cloud Storage object.</Details>")};
    m_access.require(head, ReadStorage);
}

} // namespace localcloud
