// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "app/screenshot.h"

#include "app/commandline.h"

#include <QCoreApplication>
#include <QImage>
#include <QQuickItem>
#include <QQuickView>
#include <QTimer>

#include <cstdio>

namespace {

// The player page's loader holds the project; without one there is nothing on the wall.
bool projectIsShown(const QQuickView& view)
{
    const QObject* root = view.rootObject();
    const QObject* player = root ? root->findChild<QObject*>(QStringLiteral("thePlayer")) : nullptr;
    return player && player->property("item").value<QObject*>();
}

int saveScreenshot(QQuickView& view, const Options& options)
{
    if (!view.grabWindow().save(options.screenshotFile)) {
        std::fprintf(stderr, "The screenshot %s could not be saved\n", qPrintable(options.screenshotFile));
        return 1;
    }
    if (options.start == Options::Start::Play && !projectIsShown(view)) {
        std::fprintf(stderr, "The project %s was not loaded\n", qPrintable(options.project));
        return 1;
    }
    return 0;
}

} // namespace

void saveScreenshotLater(QQuickView& view, const Options& options)
{
    QTimer::singleShot(options.screenshotDelayMs, &view,
                       [&view, options] { QCoreApplication::exit(saveScreenshot(view, options)); });
}
