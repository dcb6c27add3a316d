// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QQmlNetworkAccessManagerFactory>

/// What QML documents and the shell's own scripts fetch: XMLHttpRequest, pictures, fonts.
///
/// Nothing is unpacked, and an answer of more than limits::fetchedBytes is cut off as failed, so that nobody
/// in between can fill the memory. What is sent with a request goes to no other host, and not on without
/// encryption: such a redirect fails the request. Any thread; it must outlive the engine.
class GuardedNetwork : public QQmlNetworkAccessManagerFactory
{
public:
    QNetworkAccessManager* create(QObject* parent) override;
};
