// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>

/// The RSA key in a PEM text of the kind that Google's console hands out (PKCS#8, RFC 5208), as DER of the
/// kind RSAPrivateKey (PKCS#1, RFC 8017). Empty when there is none in it. Any thread.
QByteArray rsaKeyFromPem(const QByteArray& pem);

/// The RS256 signature of `bytes` (RSASSA-PKCS1-v1_5 with SHA-256, RFC 8017) in standard base64. `rsaKey` is
/// DER, PKCS#1. What fails is logged by a fixed label, and the result is no signature then. Any thread.
QByteArray signatureOf(const QByteArray& bytes, const QByteArray& rsaKey);
