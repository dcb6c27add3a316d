// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "app/nativetypes.h"

#include "api/downloadurl.h"
#include "api/exchange.h"
#include "api/exports.h"
#include "api/imports.h"
#include "api/projectstill.h"
#include "api/safetycopy.h"
#include "api/textfile.h"
#include "api/transfers.h"
#include "app/livedocument.h"
#include "cloud/deployment.h"
#include "lan/projectexchange.h"
#include "qmldoc/documentfaults.h"
#include "qmldoc/edits/sourceedits.h"
#include "quick/highlighter/syntaxhighlighter.h"
#include "quick/live/snapper.h"
#include "quick/picture/boundedimage.h"
#include "quick/video/transparentvideo.h"

#include <QQmlEngine>

namespace {

bool registerOnce(const Deployment& deployment)
{
    qmlRegisterType<TransparentVideo>("Nuvex.Native", 1, 0, "TransparentVideo");
    qmlRegisterType<SyntaxHighlighter>("Nuvex.Native", 1, 0, "QMLSyntaxHighlighter");
    // With what Image has learned in its versions.
    qmlRegisterRevision<QQuickItem, 15>("Nuvex.Native", 1, 1);
    qmlRegisterRevision<QQuickImageBase, 15>("Nuvex.Native", 1, 1);
    qmlRegisterRevision<QQuickImage, 15>("Nuvex.Native", 1, 1);
    qmlRegisterType<BoundedImage>("Nuvex.Native", 1, 1, "BoundedImage");
    qmlRegisterType<Imports>("Nuvex.Native", 1, 1, "Imports");
    qmlRegisterType<Exports>("Nuvex.Native", 1, 1, "Exports");
    qmlRegisterType<ProjectStill>("Nuvex.Native", 1, 1, "ProjectStill");
    qmlRegisterType<SafetyCopy>("Nuvex.Native", 1, 1, "SafetyCopy");
    qmlRegisterType<TextFile>("Nuvex.Native", 1, 1, "TextFile");
    qmlRegisterType<Transfers>("Nuvex.Native", 1, 1, "Transfers");
    qmlRegisterType<DocumentFaults>("Nuvex.Native", 1, 1, "DocumentFaults");
    qmlRegisterType<DownloadUrl>("Nuvex.Native", 1, 1, "DownloadUrl");
    qmlRegisterType<Exchange>("Nuvex.Native", 1, 1, "Exchange");
    qmlRegisterAnonymousType<ProjectExchange>("Nuvex.Native", 1);
    qmlRegisterType<LiveDocument>("Nuvex.Native", 1, 1, "LiveDocument");
    qmlRegisterType<Snapper>("Nuvex.Native", 1, 1, "Snapper");
    // The engine owns a singleton that its provider returns.
    qmlRegisterSingletonType<SourceEdits>(
        "Nuvex.Native", 1, 1, "SourceEdits",
        [](QQmlEngine*, QJSEngine*) -> QObject* { return new SourceEdits; });
    qmlRegisterSingletonType<DeploymentInfo>(
        "Nuvex.Deployment", 1, 0, "Deployment",
        [deployment](QQmlEngine*, QJSEngine*) -> QObject* { return new DeploymentInfo(deployment); });
    return true;
}

} // namespace

void registerNativeTypes(const Deployment& deployment)
{
    static const bool registered = registerOnce(deployment);
    Q_UNUSED(registered)
}
