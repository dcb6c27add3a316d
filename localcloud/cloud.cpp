// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "localcloud/cloud.h"

#include "localcloud/base/logging.h"
#include "localcloud/http/serviceerror.h"

#include <filesystem>

namespace localcloud {

namespace {

std::string madeFolder(const std::string& folder)
{
    std::filesystem::create_directories(folder);
    return folder;
}

// Sets a fault's header fields on the answer, whichever it is.
class WithHeaders : public Exchange
{
public:
    WithHeaders(std::unique_ptr<Exchange> exchange, Headers headers)
        : m_exchange(std::move(exchange))
        , m_headers(std::move(headers))
    {
    }

    bool wantsBody() const override { return m_exchange->wantsBody(); }
    void take(std::string_view piece) override { m_exchange->take(piece); }
    Answer finish() override
    {
        Answer answer = m_exchange->finish();
        for (const auto& [name, value] : m_headers)
            answer.headers.set(name, value);
        return answer;
    }

private:
    std::unique_ptr<Exchange> m_exchange;
    Headers m_headers;
};

} // namespace

Cloud::Cloud(const std::string& folder, std::chrono::seconds tokenLife)
    : m_sqlite(madeFolder(folder) + "/localcloud.sqlite")
    , m_credentials(Credentials::load(m_sqlite))
    , m_tokens(m_credentials.tokenSecret, tokenLife)
    , m_people(m_credentials)
    , m_objects(m_sqlite, madeFolder(folder + "/objects"))
    , m_uploads(m_sqlite, m_objects, madeFolder(folder + "/uploads"))
    , m_tree(m_sqlite)
    , m_accounts(m_sqlite)
    , m_storageAccess(m_tokens)
    , m_databaseAccess(m_credentials, m_tokens, m_people)
    , m_tokenService(m_credentials, m_tokens)
    , m_storageService(m_objects, m_storageAccess, m_credentials.bucket)
    , m_uploadService(m_uploads, m_objects, m_storageAccess, m_credentials.bucket)
    , m_directService(m_objects, m_storageAccess, m_credentials)
    , m_databaseService(m_tree, m_streams, m_databaseAccess)
    , m_identityService(m_accounts, m_credentials, m_people)
    , m_controlService(m_faults, m_counters, m_streams, m_tokens)
{
}

Handling Cloud::begin(const RequestHead& head)
{
    const Route route = routeOf(head);
    std::optional<Fault> fault;
    if (route.service != Service::Control) {
        m_counters.countRequest(head.method, route.kind);
        fault = m_faults.take(head.method, head.rawTarget);
    }
    return handle(head, route.service, std::move(fault));
}

Handling Cloud::handle(const RequestHead& head, Service service, std::optional<Fault> fault)
{
    Handling handling;
    if (!fault)
        fault.emplace();
    handling.conduct = fault->conduct;
    try {
        RequestHead seen = head;
        seen.credentialsExpired = fault->credentialsExpired;
        handling.exchange = fault->status
                                ? std::make_unique<ReadyExchange>(Answer{*fault->status, {}, fault->body})
                                : serve(seen, service);
    } catch (Refusal& refusal) {
        handling.exchange = std::make_unique<ReadyExchange>(std::move(refusal.answer));
    } catch (const std::exception& exception) {
        logLine(exception.what());
        handling.exchange =
            std::make_unique<ReadyExchange>(serviceError(503, "backendError", "Backend error"));
    }
    if (fault->headers.begin() != fault->headers.end())
        handling.exchange = std::make_unique<WithHeaders>(std::move(handling.exchange), fault->headers);
    return handling;
}

std::unique_ptr<Exchange> Cloud::serve(const RequestHead& head, Service service)
{
    switch (service) {
    case Service::Control:
        return m_controlService.begin(head);
    case Service::Token:
        return m_tokenService.begin(head);
    case Service::Identity:
        return m_identityService.begin(head);
    case Service::Storage:
        return m_storageService.begin(head, *StoragePath::parse(head.target));
    case Service::Upload:
        return m_uploadService.begin(head, *StoragePath::parse(head.target));
    case Service::Database:
        return m_databaseService.begin(head);
    case Service::Direct:
        return m_directService.begin(head);
    }
    refuse(404, "notFound", "Not Found");
}

void Cloud::tick()
{
    m_streams.tick(unixNow());
}

} // namespace localcloud
