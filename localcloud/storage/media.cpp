// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "localcloud/storage/media.h"

#include "localcloud/http/byterange.h"
#include "localcloud/http/serviceerror.h"
#include "localcloud/limits.h"

namespace localcloud {

namespace {

Headers mediaFields(const Object& object)
{
    Headers fields = {
        {"Content-Type", "application/octet-stream"},
        {"Accept-Ranges", "bytes"},
        {"ETag", "\"" + std::to_string(object.generation) + "\""},
        {"Last-Modified", httpDate(object.updated)},
        {"Cache-Control", object.isPublic ? "public, max-age=3600" : "private, max-age=0"},
        {"X-Goog-Generation", std::to_string(object.generation)},
        {"X-Goog-Metageneration", std::to_string(object.metageneration)},
        {"X-Goog-Hash", hashField(object)},
        {"X-Goog-Stored-Content-Length", std::to_string(object.size)},
        {"X-Goog-Stored-Content-Encoding", "identity"},
        {"X-Goog-Storage-Class", "STANDARD"},
    };
    constexpr std::pair<const char*, const char*> settable[] = {{"contentType", "Content-Type"},
                                                                {"cacheControl", "Cache-Control"},
                                                                {"contentDisposition", "Content-Disposition"},
                                                                {"contentEncoding", "Content-Encoding"},
                                                                {"contentLanguage", "Content-Language"}};
    for (const auto& [attribute, field] : settable) {
        const std::string value = textMember(object.attributes, attribute);
        const bool oneLine = value.find_first_of("\r\n") == std::string::npos;
        if (!value.empty() && oneLine)
            fields.set(field, value);
    }
    return fields;
}

} // namespace

Answer mediaAnswer(const ObjectStore& objects, const Object& object, const RequestHead& head)
{
    Answer answer{200, mediaFields(object), {}};
    const RangeRequest request = RangeRequest::parse(head.headers.find("Range"), object.size);
    const std::string total = "/" + std::to_string(object.size);
    ByteRange range{0, object.size - 1};
    if (request.kind == RangeRequest::Kind::Unsatisfiable) {
        Refusal refusal{serviceError(416, "requestedRangeNotSatisfiable", "Request range not satisfiable")};
        refusal.answer.headers.set("Content-Range", "bytes *" + total);
        throw refusal;
    }
    if (request.kind == RangeRequest::Kind::Part) {
        range = request.range;
        answer.status = 206;
        answer.headers.set("Content-Range",
                           "bytes " + std::to_string(range.first) + "-" + std::to_string(range.last) + total);
    }
    File file = objects.open(object);
    if (range.length() <= limits::smallFileBytes)
        answer.body = file.read(range.first, static_cast<std::size_t>(range.length()));
    else
        answer.body = FileSlice{std::move(file), range.first, range.length()};
    return answer;
}

} // namespace localcloud
