// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "app/nativetypes.h"

#include "app/livedocument.h"
#include "cloud/deployment.h"
#include "qmldoc/documentfaults.h"
#include "qmldoc/edits/sourceedits.h"
#include "quick/highlighter/syntaxhighlighter.h"
#include "quick/live/snapper.h"
#include "quick/video/transparentvideo.h"

#include <QQmlEngine>

namespace {

bool registerOnce(const Deployment& deployment)
{
    qmlRegisterType<TransparentVideo>("Nuvex.Native", 1, 0, "TransparentVideo");
    qmlRegisterType<SyntaxHighlighter>("Nuvex.Native", 1, 0, "QMLSyntaxHighlighter");
    qmlRegisterType<DocumentFaults>("Nuvex.Native", 1, 1, "DocumentFaults");
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
