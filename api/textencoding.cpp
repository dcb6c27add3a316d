// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "api/textencoding.h"

#include "api/limits.h"
#include "api/logging.h"
#include "base/atomicfile.h"

#include <QFileInfo>
#include <QTextCodec>

namespace {

bool isUtf8(const QByteArray& bytes)
{
    QTextCodec::ConverterState state;
    QTextCodec::codecForName("UTF-8")->toUnicode(bytes.constData(), bytes.size(), &state);
    return state.invalidChars == 0 && state.remainingChars == 0;
}

QString freeName(const QString& path)
{
    QString name = path + QStringLiteral(".orig");
    for (int number = 2; QFile::exists(name); ++number)
        name = path + QStringLiteral(".orig%1").arg(number);
    return name;
}

} // namespace

bool isTextFile(const QString& path)
{
    const QFileInfo file(path);
    return file.isFile() && file.isReadable() && file.size() <= limits::textFileBytes;
}

QByteArray textBytes(const QString& path)
{
    QFile file(path);
    return isTextFile(path) && file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

bool isUtf8File(const QString& path)
{
    return isUtf8(textBytes(path));
}

bool keepOtherEncoding(const QString& path)
{
    const QByteArray bytes = textBytes(path);
    if (isUtf8(bytes))
        return true;
    const QString kept = freeName(path);
    qCWarning(lcApi) << path << "is not UTF-8; what cannot be read of it is lost. It is kept as" << kept;
    return writeFileAtomically(kept, bytes);
}
