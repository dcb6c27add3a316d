// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include <chrono>
#include <cstdint>
#include <optional>

namespace localcloud {

/// How a connection behaves for one request. By default well; everything else is a fault that a test asked
/// for.
struct Conduct
{
    enum class Drop {
        Never,
        BeforeAction, ///< closed when the request was read, without carrying it out
        AfterAction,  ///< carried out, then closed without an answer
    };

    std::chrono::milliseconds delay{0}; ///< before the answer
    Drop drop = Drop::Never;
    std::optional<std::int64_t> requestCutAfter;   ///< bytes of the request's body, then closed
    std::optional<std::int64_t> requestStallAfter; ///< bytes of the request's body, then nothing more is read
    std::optional<std::int64_t> cutAfter;          ///< bytes of the answer's body, then closed
    std::optional<std::int64_t> stallAfter;        ///< bytes of the answer's body, then silence
    std::optional<std::int64_t> corruptAt;         ///< offset of a byte of the answer's body that is changed
    std::int64_t lengthError = 0;                  ///< added to the length that the answer tells
    std::int64_t bytesPerSecond = 0;               ///< at most, of the answer's body; 0 for no bound

    /// Whether the body of the answer goes out as it is.
    bool sendsPlainly() const { return !cutAfter && !stallAfter && !corruptAt && bytesPerSecond == 0; }
};

} // namespace localcloud
