// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "localcloud/storage/resumableexchange.h"

#include "localcloud/http/serviceerror.h"
#include "localcloud/limits.h"

#include <algorithm>

namespace localcloud {

namespace {

// Without the field, the body is the whole object.
UploadRange rangeOf(const RequestHead& head)
{
    if (!head.headers.has("Content-Range"))
        return {0, {}, {}};
    const std::optional<UploadRange> range = UploadRange::parse(head.headers.find("Content-Range"));
    if (!range)
        refuse(400, "badRequest", "Failed to parse Content-Range header.");
    return *range;
}

} // namespace

ResumableExchange::ResumableExchange(UploadSessions& sessions, std::shared_ptr<UploadSession> session,
                                     const RequestHead& head, const BucketPlace& place)
    : m_sessions(sessions)
    , m_session(std::move(session))
    , m_place(place)
    , m_range(rangeOf(head))
    , m_total(m_range.total ? m_range.total : m_session->total)
    , m_overridesStatus(head.headers.find("X-Guploader-No-308") == "yes")
    , m_position(m_range.first.value_or(0))
    , m_end(std::numeric_limits<std::int64_t>::max())
{
    checkRange();
    if (!m_range.first)
        m_end = 0;
    else if (!isLastChunk())
        m_end = (*m_range.last + 1) / limits::uploadChunk * limits::uploadChunk;
    m_session->writer = this;
}

void ResumableExchange::checkRange() const
{
    if (!m_range.first)
        return;
    if (m_position > received())
        refuse(503, "backendError",
               "Invalid request. According to the Content-Range header, the upload offset is " +
                   std::to_string(m_position) + " byte(s), which exceeds already uploaded size of " +
                   std::to_string(received()) + " byte(s).");
    if (!isLastChunk() && *m_range.last + 1 - m_position < limits::uploadChunk)
        refuse(
            400, "badRequest",
            "Invalid request. The number of bytes uploaded is required to be equal or greater than 262144, "
            "except for the final request.");
}

void ResumableExchange::take(std::string_view piece)
{
    if (m_session->writer != this)
        refuse(503, "backendError", "Another request goes on with this upload.");
    const std::int64_t skipped = std::max<std::int64_t>(received() - m_position, 0); // arrived before
    const std::int64_t end = m_position + static_cast<std::int64_t>(piece.size());
    const std::int64_t counted = std::min(end, m_end) - m_position - skipped;
    if (counted > 0)
        m_session->file->append(
            piece.substr(static_cast<std::size_t>(skipped), static_cast<std::size_t>(counted)));
    m_position = end;
}

Answer ResumableExchange::finish()
{
    if (m_session->writer != this)
        refuse(503, "backendError", "Another request goes on with this upload.");
    if (m_total && received() > *m_total)
        refuse(400, "badRequest", "More bytes arrived than the object was to have.");
    if (!isComplete())
        return incomplete();
    return jsonAnswer(200, objectResource(m_sessions.finish(*m_session), m_place).dump());
}

bool ResumableExchange::isComplete() const
{
    return m_total ? received() == *m_total : m_range.first && !m_range.last;
}

// Of a body without a known end, all counts.
bool ResumableExchange::isLastChunk() const
{
    return !m_range.last || (m_total && *m_range.last + 1 >= *m_total);
}

Answer ResumableExchange::incomplete() const
{
    Answer answer{308, {{"X-GUploader-UploadID", m_session->id}}, {}};
    if (received() > 0)
        answer.headers.set("Range", "bytes=0-" + std::to_string(received() - 1));
    if (m_overridesStatus) {
        answer.status = 200;
        answer.headers.set("X-Http-Status-Code-Override", "308");
    }
    return answer;
}

} // namespace localcloud
