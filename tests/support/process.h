// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QProcess>
#include <QTest>

/// What `program` prints when it gets `input`; fails the test when it does not succeed.
inline QByteArray outputOf(const QString& program, const QStringList& arguments, const QByteArray& input = {})
{
    constexpr int patience = 60'000; // ms
    QProcess process;
    process.start(program, arguments);
    process.write(input);
    process.closeWriteChannel();
    process.waitForFinished(patience);
    if (process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0)
        QTest::qFail((program.toUtf8() + ": " + process.readAllStandardError()).constData(), __FILE__,
                     __LINE__);
    return process.readAllStandardOutput();
}

/// A new RSA key of 2048 bits, as PEM (PKCS#8).
inline QByteArray newKey()
{
    return outputOf("openssl",
                    {"genpkey", "-quiet", "-algorithm", "RSA", "-pkeyopt", "rsa_keygen_bits:2048"});
}
