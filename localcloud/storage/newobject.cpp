// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "localcloud/storage/newobject.h"

#include "localcloud/base/encoding.h"
#include "localcloud/http/serviceerror.h"
#include "localcloud/limits.h"

#include <algorithm>

namespace localcloud {

namespace {

// The X-Goog-Hash field: comma-separated "crc32c=..." and "md5=...".
void readHashes(std::string_view field, NewObject& object)
{
    while (!field.empty()) {
        std::string_view part = field.substr(0, field.find(','));
        field.remove_prefix(std::min(part.size() + 1, field.size()));
        part.remove_prefix(std::min(part.find_first_not_of(' '), part.size()));
        const std::size_t mark = part.find('=');
        if (part.substr(0, mark) == "md5")
            object.md5 = part.substr(mark + 1);
        else if (part.substr(0, mark) == "crc32c")
            object.crc32c = part.substr(mark + 1);
    }
}

} // namespace

NewObject newObject(const RequestHead& head, const std::string& resource, const std::string& contentType)
{
    const std::optional<Json> json =
        resource.empty() ? Json::object() : parseJson(resource, limits::jsonDepth);
    if (!json || !json->is_object())
        refuse(400, "parseError", "Parse Error");
    NewObject object;
    object.name = textMember(*json, "name");
    object.attributes = settableAttributes(*json);
    if (head.target.has("name"))
        object.name = head.target.value("name");
    if (object.name.empty())
        refuse(400, "required", "Required parameter: name");
    if (!isObjectName(object.name))
        refuse(400, "invalid", "Invalid object name.");
    if (!object.attributes.contains("contentType"))
        object.attributes["contentType"] =
            contentType.empty() || !isUtf8(contentType) ? "application/octet-stream" : contentType;
    object.isPublic = head.target.value("predefinedAcl") == "publicRead";
    object.conditions = Preconditions::parse(head.target);
    object.md5 = textMember(*json, "md5Hash");
    object.crc32c = textMember(*json, "crc32c");
    readHashes(head.headers.find("X-Goog-Hash"), object);
    return object;
}

} // namespace localcloud
