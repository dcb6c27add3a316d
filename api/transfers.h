// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include "api/cloudtransfers.h"

#include <QQmlParserStatus>

/// The QML type "Transfers" of "Nuvex.Native" 1.1: CloudTransfers with the cloud of the CAPI that the
/// engine's context property of that name holds; without one it does nothing.
class Transfers : public CloudTransfers, public QQmlParserStatus
{
    Q_OBJECT
    Q_INTERFACES(QQmlParserStatus)

private:
    void classBegin() override;
    void componentComplete() override {}
};
