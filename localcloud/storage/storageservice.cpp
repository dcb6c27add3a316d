// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "localcloud/storage/storageservice.h"

#include "localcloud/http/serviceerror.h"
#include "localcloud/limits.h"
#include "localcloud/storage/media.h"

namespace localcloud {

namespace {

std::unique_ptr<Exchange> ready(Answer answer)
{
    return std::make_unique<ReadyExchange>(std::move(answer));
}

[[noreturn]] void refuseMethod()
{
    refuse(405, "methodNotAllowed", "The specified method is not allowed against this resource.");
}

Json parseResource(const std::string& body)
{
    if (body.empty())
        return Json::object();
    std::optional<Json> json = parseJson(body, limits::jsonDepth);
    if (json && json->is_null()) // as some clients say that they have nothing to say
        return Json::object();
    if (!json || !json->is_object())
        refuse(400, "parseError", "Parse Error");
    return *json;
}

std::unique_ptr<Exchange> withResource(CollectingExchange::Respond respond)
{
    return std::make_unique<CollectingExchange>(
        limits::metadataBytes, serviceError(413, "uploadTooLarge", "The metadata is too large."),
        std::move(respond));
}

} // namespace

StorageService::StorageService(ObjectStore& objects, const StorageAccess& access, std::string bucket)
    : m_objects(objects)
    , m_access(access)
    , m_bucket(std::move(bucket))
{
}

std::unique_ptr<Exchange> StorageService::begin(const RequestHead& head, const StoragePath& path)
{
    using Kind = StoragePath::Kind;
    if (path.kind == Kind::Buckets)
        return ready(buckets(head));
    if (path.bucket != m_bucket || (path.kind == Kind::Copy && path.targetBucket != m_bucket))
        refuse(404, "notFound", "The specified bucket does not exist.");
    switch (path.kind) {
    case Kind::Bucket:
        return ready(bucket(head));
    case Kind::Objects:
        return ready(list(head));
    case Kind::Object:
        return object(head, path);
    default:
        return copy(head, path);
    }
}

Answer StorageService::buckets(const RequestHead& head) const
{
    if (head.method == "POST") { // there is one bucket, and it is made
        m_access.require(head, WriteStorage);
        refuse(409, "conflict",
               "Your previous request to create the named bucket succeeded and you already own it.");
    }
    if (head.method != "GET")
        refuseMethod();
    m_access.require(head, ReadStorage);
    const Json list = {{"kind", "storage#buckets"}, {"items", Json::array({bucketResource(place(head))})}};
    return jsonAnswer(200, list.dump());
}

Answer StorageService::bucket(const RequestHead& head) const
{
    if (head.method != "GET")
        refuseMethod();
    m_access.require(head, ReadStorage);
    return jsonAnswer(200, bucketResource(place(head)).dump());
}

Answer StorageService::list(const RequestHead& head)
{
    if (head.method != "GET")
        refuseMethod();
    m_access.require(head, ReadStorage);
    return jsonAnswer(200, m_objects.list(ListQuery::parse(head.target)).json(place(head)));
}

std::unique_ptr<Exchange> StorageService::object(const RequestHead& head, const StoragePath& path)
{
    if (head.method == "GET" || head.method == "HEAD")
        return ready(get(head, path));
    if (head.method == "DELETE")
        return ready(remove(head, path.object));
    if (head.method != "PATCH" && head.method != "PUT")
        refuseMethod();
    m_access.require(head, WriteStorage);
    return withResource([=](const std::string& body) { return update(head, path.object, body); });
}

Answer StorageService::get(const RequestHead& head, const StoragePath& path)
{
    const bool anonymous = StorageAccess::isAnonymous(head);
    const std::optional<Object> shared = anonymous ? m_objects.find(path.object) : std::nullopt;
    if (!shared || !shared->isPublic)
        m_access.require(head, ReadStorage);
    const Object object = found(path.object, head.target.value("generation"));
    Preconditions::parse(head.target).checkForReading(&object);
    const bool media = path.service == "download" || head.target.value("alt") == "media";
    return media ? mediaAnswer(m_objects, object, head)
                 : jsonAnswer(200, objectResource(object, place(head)).dump());
}

Answer StorageService::remove(const RequestHead& head, const std::string& name)
{
    m_access.require(head, WriteStorage);
    const Object object = found(name, head.target.value("generation"));
    Preconditions::parse(head.target).checkForWriting(&object);
    m_objects.remove(object);
    return {204, {}, {}};
}

Answer StorageService::update(const RequestHead& head, const std::string& name, const std::string& body)
{
    const Json changes = parseResource(body);
    const Object object = found(name, head.target.value("generation"));
    Preconditions::parse(head.target).checkForWriting(&object);
    Json attributes = head.method == "PATCH" ? object.attributes : Json::object();
    mergeAttributes(attributes, changes);
    return jsonAnswer(200, objectResource(m_objects.setAttributes(object, attributes), place(head)).dump());
}

std::unique_ptr<Exchange> StorageService::copy(const RequestHead& head, const StoragePath& path)
{
    if (head.method != "POST")
        refuseMethod();
    m_access.require(head, WriteStorage);
    if (!isObjectName(path.targetObject))
        refuse(400, "invalid", "Invalid object name.");
    return withResource([=](const std::string& body) { return copied(head, path, body); });
}

Answer StorageService::copied(const RequestHead& head, const StoragePath& path, const std::string& body)
{
    const Object source = found(path.object, head.target.value("sourceGeneration"));
    Preconditions::parse(head.target, "ifSource").checkForWriting(&source);
    NewObject target;
    target.name = path.targetObject;
    target.attributes = settableAttributes(parseResource(body));
    target.conditions = Preconditions::parse(head.target);
    target.isPublic = head.target.value("destinationPredefinedAcl") == "publicRead";
    if (target.attributes.empty())
        target.attributes = source.attributes;
    else if (!target.attributes.contains("contentType") && source.attributes.contains("contentType"))
        target.attributes["contentType"] = source.attributes["contentType"];
    const Object object = m_objects.copy(source, target);
    const Json resource = objectResource(object, place(head));
    if (path.verb == "copyTo")
        return jsonAnswer(200, resource.dump());
    const std::string size = std::to_string(object.size);
    const Json result = {{"kind", "storage#rewriteResponse"},
                         {"done", true},
                         {"totalBytesRewritten", size},
                         {"objectSize", size},
                         {"resource", resource}};
    return jsonAnswer(200, result.dump());
}

Object StorageService::found(const std::string& name, const std::string& generation)
{
    std::optional<Object> object = isObjectName(name) ? m_objects.find(name) : std::nullopt;
    if (!object || (!generation.empty() && generation != std::to_string(object->generation)))
        refuse(404, "notFound", "No such object: " + m_bucket + "/" + (isObjectName(name) ? name : "?"));
    return *object;
}

} // namespace localcloud
