// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "localcloud/control/controlservice.h"

#include "localcloud/http/serviceerror.h"
#include "localcloud/limits.h"

namespace localcloud {

namespace {

constexpr std::string_view root = "/_localcloud/";

const Answer done{204, {}, {}};

} // namespace

ControlService::ControlService(Faults& faults, Counters& counters, Streams& streams, AccessTokens& tokens)
    : m_faults(faults)
    , m_counters(counters)
    , m_streams(streams)
    , m_tokens(tokens)
{
}

bool ControlService::serves(std::string_view path)
{
    return path.substr(0, root.size()) == root;
}

std::unique_ptr<Exchange> ControlService::begin(const RequestHead& head)
{
    const std::string what = head.target.path.substr(root.size());
    const auto collect = [](CollectingExchange::Respond respond) {
        return std::make_unique<CollectingExchange>(
            limits::faultsBytes, serviceError(413, "uploadTooLarge", "The request is too large."),
            std::move(respond));
    };
    const std::string call = head.method + " " + what;
    if (call == "PUT faults")
        return collect([this](const std::string& body) { return setFaults(body); });
    if (call == "GET faults")
        return collect([this](const std::string&) { return showFaults(); });
    if (call == "DELETE faults")
        return collect([this](const std::string&) { return setFaults("[]"); });
    if (call == "GET counters")
        return collect([this](const std::string&) { return showCounters(); });
    if (call == "DELETE counters")
        return collect([this](const std::string&) {
            m_counters.reset();
            return Answer{204, {}, {}};
        });
    if (call == "DELETE streams")
        return collect(
            [this, how = head.target.value("how")](const std::string&) { return endStreams(how); });
    if (call == "DELETE tokens")
        return collect([this](const std::string&) { return expireTokens(); });
    refuse(404, "notFound", "There is no such control.");
}

Answer ControlService::setFaults(const std::string& body)
{
    try {
        m_faults.set(parseFaults(body));
        return {204, {}, {}};
    } catch (const FaultsFault& fault) {
        return serviceError(400, "invalid", fault.what());
    }
}

Answer ControlService::showFaults() const
{
    return jsonAnswer(200, Json{{"left", m_faults.left()}}.dump());
}

Answer ControlService::showCounters() const
{
    Json json = m_counters.json();
    json["openStreams"] = m_streams.count();
    return jsonAnswer(200, json.dump(2));
}

Answer ControlService::endStreams(const std::string& how)
{
    if (how.empty())
        m_streams.endAll({});
    else if (how == "cancel" || how == "auth_revoked")
        m_streams.endAll(how);
    else if (how == "silence")
        m_streams.muteAll();
    else
        refuse(400, "invalid", R"("how" is "cancel", "auth_revoked" or "silence")");
    return {204, {}, {}};
}

Answer ControlService::expireTokens()
{
    m_tokens.expireAll(unixNow());
    m_streams.revokeTokens();
    return {204, {}, {}};
}

} // namespace localcloud
