// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "lan/frame.h"

#include "lan/limits.h"

#include <QDataStream>
#include <QtEndian>

#include <algorithm>

namespace {

constexpr int tagBytes = 5;
constexpr int headerBytes = tagBytes + int(sizeof(qint64));
constexpr QDataStream::Version payloadVersion = QDataStream::Qt_5_15;

QByteArray tagOf(Frame::Kind kind)
{
    switch (kind) {
    case Frame::Kind::Name:
        return QByteArrayLiteral("SNAME");
    case Frame::Kind::Request:
        return QByteArrayLiteral("GFILE");
    default:
        return QByteArrayLiteral("SFILE");
    }
}

Frame::Kind kindOf(const QByteArray& tag)
{
    for (Frame::Kind kind : {Frame::Kind::Name, Frame::Kind::Request, Frame::Kind::File}) {
        if (tag == tagOf(kind))
            return kind;
    }
    return Frame::Kind::Unknown;
}

// Whether it can stand in a list and in a line of the log.
bool isPlayerName(const QString& text)
{
    return !text.isEmpty() && text.size() <= limits::playerName &&
           std::none_of(text.cbegin(), text.cend(),
                        [](QChar c) { return c.category() == QChar::Other_Control; });
}

bool isSound(const Frame& frame)
{
    if (frame.kind == Frame::Kind::Name && !isPlayerName(frame.text))
        return false;
    return frame.text.isValidUtf16() && frame.size >= 0 && frame.size <= limits::fileBytes;
}

} // namespace

const QString answerTarget = QStringLiteral("GFILE");

QByteArray encodeFrame(const Frame& frame)
{
    QByteArray payload;
    QDataStream stream(&payload, QIODevice::WriteOnly);
    stream.setVersion(payloadVersion);
    stream << frame.text;
    if (frame.kind == Frame::Kind::File)
        stream << frame.size;
    QByteArray length(int(sizeof(qint64)), Qt::Uninitialized);
    qToLittleEndian(qint64(payload.size()), length.data());
    return tagOf(frame.kind) + length + payload;
}

qint64 FrameReader::missing() const
{
    return (m_bytes.size() < headerBytes ? headerBytes : headerBytes + payloadLength()) - m_bytes.size();
}

FrameReader::State FrameReader::feed(const QByteArray& bytes)
{
    Q_ASSERT(bytes.size() <= missing());
    m_bytes += bytes;
    if (m_bytes.size() < headerBytes)
        return State::Incomplete;
    if (payloadLength() < 0 || payloadLength() > limits::payloadBytes)
        return State::Broken;
    return missing() > 0 ? State::Incomplete : finish();
}

qint64 FrameReader::payloadLength() const
{
    return qFromLittleEndian<qint64>(m_bytes.constData() + tagBytes);
}

FrameReader::State FrameReader::finish()
{
    const QByteArray tag = m_bytes.left(tagBytes);
    m_frame = {kindOf(tag), QString::fromLatin1(tag), 0};
    if (m_frame.kind != Frame::Kind::Unknown) {
        QDataStream stream(m_bytes);
        stream.setVersion(payloadVersion);
        stream.skipRawData(headerBytes);
        stream >> m_frame.text;
        if (m_frame.kind == Frame::Kind::File)
            stream >> m_frame.size;
        if (stream.status() != QDataStream::Ok || !isSound(m_frame))
            return State::Broken;
    }
    m_bytes.clear();
    return State::Complete;
}
