// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "localcloud/database/databaseservice.h"

#include "localcloud/database/location.h"
#include "localcloud/limits.h"

#include <algorithm>
#include <map>

namespace localcloud {

namespace {

constexpr const char* noObject =
    "Invalid data; couldn't parse JSON object. Are you sending a JSON object with valid key names?";
constexpr const char* queries[] = {"orderBy", "startAt", "endAt", "equalTo", "limitToFirst", "limitToLast"};

// A POST may stand for another method.
std::string methodOf(const RequestHead& head)
{
    if (head.method != "POST")
        return head.method;
    std::string method(head.headers.find("X-HTTP-Method-Override"));
    if (method.empty())
        method = head.target.value("x-http-method-override");
    return method.empty() ? head.method : method;
}

Answer valueAnswer(const RequestHead& head, const Json& value)
{
    const std::string print = head.target.value("print");
    if (print == "silent")
        return {204, {}, {}};
    constexpr int indent = 2;
    return jsonAnswer(200, value.dump(print == "pretty" ? indent : -1));
}

std::size_t depthOf(const std::string& location)
{
    return static_cast<std::size_t>(std::count(location.begin(), location.end(), '/'));
}

std::unique_ptr<Exchange> ready(Answer answer)
{
    return std::make_unique<ReadyExchange>(std::move(answer));
}

void refuseQueries(const Target& target)
{
    for (const char* name : queries) {
        if (target.has(name))
            throw Refusal{databaseError(400, std::string("This server does not know the query ") + name)};
    }
}

const Json::object_t& membersOf(const Json& value)
{
    if (!value.is_object())
        throw DataFault(noObject);
    return value.get_ref<const Json::object_t&>();
}

// Of two writes one within the other, the outcome would depend on their order.
void refuseAncestors(std::string place, const std::map<std::string, Json>& writes)
{
    while (!place.empty()) {
        place.resize(place.rfind('/'));
        if (writes.count(place) != 0)
            throw DataFault("Invalid data; a path of the update is the ancestor of another.");
    }
}

} // namespace

DatabaseService::DatabaseService(TreeStore& tree, Streams& streams, const DatabaseAccess& access)
    : m_tree(tree)
    , m_streams(streams)
    , m_access(access)
{
}

bool DatabaseService::isStream(const RequestHead& head)
{
    return head.method == "GET" &&
           head.headers.find("Accept").find("text/event-stream") != std::string_view::npos;
}

std::unique_ptr<Exchange> DatabaseService::begin(const RequestHead& head)
{
    const std::optional<std::string> location = locationOf(head.target.path);
    if (!location)
        throw Refusal{databaseError(400, "Invalid path: Invalid token in path")};
    if (depthOf(*location) > limits::treeDepth)
        throw Refusal{databaseError(400, "Invalid path: it exceeds the maximum depth of 32 levels")};
    const std::optional<UnixMs> ends = m_access.require(head);
    refuseQueries(head.target);
    if (isStream(head))
        return ready(stream(*location, ends));
    const std::string method = methodOf(head);
    if (method == "GET" || method == "HEAD")
        return ready(read(head, *location));
    if (method != "PUT" && method != "PATCH" && method != "POST" && method != "DELETE")
        throw Refusal{databaseError(405, "The method is not allowed.")};
    return std::make_unique<CollectingExchange>(
        limits::writeBytes,
        databaseError(413,
                      "Data to write exceeds the maximum size that can be modified with a single request."),
        [this, head, method, place = *location](const std::string& body) {
            return write(head, method, place, body);
        });
}

Answer DatabaseService::read(const RequestHead& head, const std::string& location)
{
    if (head.target.value("shallow") == "true")
        return valueAnswer(head, m_tree.readKeys(location));
    return valueAnswer(head, presented(m_tree.read(location)));
}

// The value is read when the stream begins, which a fault can put off: no change falls between the two.
Answer DatabaseService::stream(const std::string& location, std::optional<UnixMs> ends)
{
    return {200,
            {{"Content-Type", "text/event-stream; charset=utf-8"}, {"Cache-Control", "no-cache"}},
            [this, location, ends](EventSink& sink) {
                return m_streams.open(location, m_tree.read(location), ends, sink, unixNow());
            }};
}

Answer DatabaseService::write(const RequestHead& head, const std::string& method, const std::string& location,
                              const std::string& body)
{
    constexpr int wrapping = 1; // a member too deep is refused in words, one far too deep as no JSON
    if (method == "DELETE")
        return valueAnswer(head, put(location, {}));
    const std::optional<Json> value = parseJson(body, limits::treeDepth + wrapping);
    if (!value)
        return databaseError(400, "Invalid data; couldn't parse JSON object, array, or value.");
    try {
        if (method == "PATCH")
            return valueAnswer(head, patch(location, *value));
        if (method == "PUT")
            return valueAnswer(head, put(location, *value));
        const std::string id = m_ids.next(unixNow());
        put(childOf(location, id), *value);
        return valueAnswer(head, {{"name", id}});
    } catch (const DataFault& fault) {
        return databaseError(400, fault.what());
    }
}

Json DatabaseService::put(const std::string& location, const Json& value)
{
    Json kept = normalized(value, depthOf(location), unixNow());
    m_tree.write({{location, kept}});
    m_streams.publish({Change::Kind::Put, location, kept});
    return presented(kept);
}

Json DatabaseService::patch(const std::string& location, const Json& value)
{
    const UnixMs now = unixNow();
    std::map<std::string, Json> writes;
    for (const auto& [path, member] : membersOf(value)) {
        const std::optional<std::string> place = locationBelow(location, path);
        if (!place || *place == location || writes.count(*place) != 0)
            throw DataFault(noObject);
        writes[*place] = normalized(member, depthOf(*place), now);
    }
    Json kept = Json::object();
    for (const auto& [place, member] : writes) {
        refuseAncestors(place, writes);
        kept[place.substr(location.size() + 1)] = member;
    }
    m_tree.write({writes.begin(), writes.end()});
    m_streams.publish({Change::Kind::Patch, location, kept});
    return presentedMembers(kept);
}

} // namespace localcloud
