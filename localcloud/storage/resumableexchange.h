// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "localcloud/http/byterange.h"
#include "localcloud/http/exchange.h"
#include "localcloud/storage/uploadsessions.h"

#include <memory>

namespace localcloud {

/// One request to a resumable upload that is not finished: brings bytes, or asks how many have arrived.
///
/// What has arrived when a connection is cut counts. A chunk that is not the last counts in whole multiples
/// of limits::uploadChunk.
class ResumableExchange : public Exchange
{
public:
    /// Throws a Refusal.
    ResumableExchange(UploadSessions& sessions, std::shared_ptr<UploadSession> session,
                      const RequestHead& head, const BucketPlace& place);

    void take(std::string_view piece) override;
    Answer finish() override;

private:
    void checkRange() const;
    std::int64_t received() const { return m_session->file->size(); }
    bool isComplete() const;
    bool isLastChunk() const;
    Answer incomplete() const;

    UploadSessions& m_sessions;
    std::shared_ptr<UploadSession> m_session;
    BucketPlace m_place;
    UploadRange m_range;
    std::optional<std::int64_t> m_total;
    bool m_overridesStatus;  // the client cannot be told 308
    std::int64_t m_position; // in the object, of the next byte of the body
    std::int64_t m_end;      // bytes of the object from here on do not count yet
};

} // namespace localcloud
