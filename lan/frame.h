// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QString>

/// Frames of the file transfer protocol as values and bytes; docs/lan-protocol.md has their form.
struct Frame
{
    enum class Kind {
        Name,    ///< "SNAME": `text` is the sender's player name
        Request, ///< "GFILE": `text` is the path of a file that the sender wants
        File,    ///< "SFILE": `text` is a target path, or answerTarget; `size` bytes of content follow
        Unknown, ///< any other tag, which is `text`; its payload is passed over
    };

    Kind kind = Kind::Unknown;
    QString text;
    qint64 size = 0;
};

/// Target path of a file that answers a request.
extern const QString answerTarget;

/// The bytes of a frame, whose kind is not Unknown.
QByteArray encodeFrame(const Frame& frame);

/// Puts frames together from bytes that arrive in any pieces. It is never fed more than the frame needs, so
/// that what follows a frame stays with the caller. Holds at most one frame.
class FrameReader
{
public:
    enum class State {
        Incomplete, ///< more bytes are needed
        Complete,   ///< frame() is there; the next byte begins another one
        Broken,     ///< the bytes are no frame within the bounds of limits.h; to go on makes no sense
    };

    /// Bytes that may be fed next; at least 1.
    qint64 missing() const;
    /// Whether a frame has begun.
    bool isInFrame() const { return !m_bytes.isEmpty(); }
    /// Takes at most missing() bytes.
    State feed(const QByteArray& bytes);
    /// The frame that was completed last.
    const Frame& frame() const { return m_frame; }

private:
    qint64 payloadLength() const;
    State finish();

    QByteArray m_bytes; // of the frame so far
    Frame m_frame;
};
