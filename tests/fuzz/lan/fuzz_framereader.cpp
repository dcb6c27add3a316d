// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

// Feeds any bytes to the reader of frames, whole and in pieces, and checks what holds for every frame. The
// first byte is the size of the pieces.

#include "lan/announcement.h"
#include "lan/frame.h"
#include "lan/limits.h"

#include <QStringList>

#include <cstdlib>

namespace {

using State = FrameReader::State;

void require(bool holds)
{
    if (!holds)
        std::abort();
}

void check(const Frame& frame)
{
    require(frame.text.isValidUtf16() && frame.size >= 0 && frame.size <= limits::fileBytes);
    if (frame.kind == Frame::Kind::Unknown)
        return;
    const QByteArray bytes = encodeFrame(frame);
    FrameReader reader;
    reader.feed(bytes.left(13));
    require(reader.feed(bytes.mid(13)) == State::Complete && !reader.isInFrame());
    require(reader.frame().kind == frame.kind && reader.frame().text == frame.text &&
            reader.frame().size == frame.size);
}

// Texts of all frames until the bytes end or break.
QStringList read(const QByteArray& bytes, qint64 piece)
{
    FrameReader reader;
    QStringList texts;
    for (int at = 0; at < bytes.size();) {
        const qint64 missing = reader.missing();
        require(missing >= 1 && missing <= 13 + limits::payloadBytes);
        const QByteArray part = bytes.mid(at, int(qMin(missing, piece)));
        at += part.size();
        const State state = reader.feed(part);
        if (state == State::Broken)
            return texts << QStringLiteral("broken");
        if (state == State::Complete) {
            check(reader.frame());
            texts.append(reader.frame().text);
        }
    }
    return texts;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uchar* data, size_t size)
{
    if (size == 0)
        return 0;
    const QByteArray bytes(reinterpret_cast<const char*>(data + 1), int(size - 1));
    require(read(bytes, bytes.size() + 1) == read(bytes, data[0] + 1));
    announcedPort(bytes);
    return 0;
}
