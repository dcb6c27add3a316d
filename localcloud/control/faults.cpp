// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "localcloud/control/faults.h"

#include "localcloud/base/encoding.h"
#include "localcloud/limits.h"

#include <algorithm>

#include <fnmatch.h>

namespace localcloud {

namespace {

[[noreturn]] void fail(const std::string& member, const char* expected)
{
    throw FaultsFault("\"" + percentEncode(member, " ") + "\" " + expected);
}

// The members of one fault; each is asked for by name, and those left over are unknown.
class Members
{
public:
    explicit Members(const Json& fault)
        : m_left(fault)
    {
        if (!fault.is_object())
            throw FaultsFault("a fault is an object");
    }

    bool has(const char* name) const { return m_left.contains(name); }

    std::string text(const char* name)
    {
        Json value = take(name, "");
        if (!value.is_string())
            fail(name, "is a text");
        return value;
    }

    bool flag(const char* name)
    {
        const Json value = take(name, false);
        if (!value.is_boolean())
            fail(name, "is true or false");
        return value;
    }

    std::optional<std::int64_t> number(const char* name, std::int64_t least = 0)
    {
        if (!has(name))
            return {};
        const Json value = take(name, 0);
        if (!value.is_number_integer() || value.get<std::int64_t>() < least)
            fail(name, "is a whole number that is not too small");
        return value.get<std::int64_t>();
    }

    Headers headers()
    {
        Headers result;
        const Json fields = take("headers", Json::object());
        if (!fields.is_object())
            fail("headers", "is an object of texts");
        for (const auto& [name, value] : fields.items()) {
            if (!value.is_string())
                fail("headers", "is an object of texts");
            result.set(name, value);
        }
        return result;
    }

    void refuseRest() const
    {
        if (!m_left.empty())
            fail(m_left.begin().key(), "is not known");
    }

private:
    Json take(const char* name, const Json& fallback)
    {
        Json value = m_left.value(name, fallback);
        m_left.erase(name);
        return value;
    }

    Json m_left;
};

std::string readBody(Members& members)
{
    if (members.has("bodyBase64")) {
        const std::optional<std::string> bytes = base64Decode(members.text("bodyBase64"));
        return bytes ? *bytes : throw FaultsFault("\"bodyBase64\" is base64");
    }
    if (const auto size = members.number("bodyBytes")) {
        if (*size > static_cast<std::int64_t>(limits::madeUpBytes))
            fail("bodyBytes", "is too large");
        return std::string(static_cast<std::size_t>(*size), ' ');
    }
    return members.text("body");
}

// Any member that speaks of an answer asks for one.
void readAnswer(Members& members, Fault& fault)
{
    constexpr int success = 200;
    constexpr int redirection = 307;
    constexpr std::int64_t most = 599;
    for (const char* name : {"status", "body", "bodyBase64", "bodyBytes"}) {
        if (members.has(name))
            fault.status = success;
    }
    fault.body = readBody(members);
    fault.headers = members.headers();
    const std::string redirect = members.text("redirect");
    if (!redirect.empty()) {
        fault.status = redirection;
        fault.headers.set("Location", redirect);
    }
    if (const auto status = members.number("status", success))
        fault.status = static_cast<int>(std::min(*status, most));
}

Conduct::Drop readDrop(Members& members)
{
    const std::string drop = members.text("drop");
    if (drop == "before")
        return Conduct::Drop::BeforeAction;
    if (drop == "after")
        return Conduct::Drop::AfterAction;
    if (!drop.empty())
        fail("drop", R"(is "before" or "after")");
    return Conduct::Drop::Never;
}

Conduct readConduct(Members& members)
{
    Conduct conduct;
    conduct.delay = std::chrono::milliseconds(members.number("delayMs").value_or(0));
    conduct.drop = readDrop(members);
    conduct.requestCutAfter = members.number("requestCutAfter");
    conduct.requestStallAfter = members.number("requestStallAfter");
    conduct.cutAfter = members.number("cutAfter");
    conduct.stallAfter = members.number("stallAfter");
    conduct.corruptAt = members.number("corruptAt");
    conduct.lengthError = members.number("lengthError", INT32_MIN).value_or(0);
    conduct.bytesPerSecond = members.number("bytesPerSecond").value_or(0);
    return conduct;
}

Fault readFault(const Json& json)
{
    Members members(json);
    Fault fault;
    fault.method = members.text("method");
    fault.target = members.has("target") ? members.text("target") : "*";
    fault.skip = members.number("skip").value_or(0);
    fault.times = members.number("times").value_or(1);
    fault.credentialsExpired = members.flag("credentialsExpired");
    readAnswer(members, fault);
    fault.conduct = readConduct(members);
    members.refuseRest();
    return fault;
}

} // namespace

bool Fault::matches(const std::string& itsMethod, const std::string& itsTarget) const
{
    return (method.empty() || method == itsMethod) && ::fnmatch(target.c_str(), itsTarget.c_str(), 0) == 0;
}

std::vector<Fault> parseFaults(const std::string& json)
{
    const std::optional<Json> list = parseJson(json, limits::jsonDepth);
    if (!list || !list->is_array())
        throw FaultsFault("faults are a JSON list");
    std::vector<Fault> faults;
    std::transform(list->begin(), list->end(), std::back_inserter(faults), readFault);
    return faults;
}

std::optional<Fault> Faults::take(const std::string& method, const std::string& target)
{
    for (Fault& fault : m_faults) {
        if (fault.times == 0 || !fault.matches(method, target))
            continue;
        if (fault.skip > 0) {
            --fault.skip;
            continue;
        }
        --fault.times;
        return fault;
    }
    return {};
}

long long Faults::left() const
{
    long long times = 0;
    for (const Fault& fault : m_faults)
        times += fault.times;
    return times;
}

} // namespace localcloud
