// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "app/screenshot.h"

#include "api/playerview.h"
#include "app/commandline.h"

#include <QCoreApplication>
#include <QImage>
#include <QQuickView>
#include <QTimer>

#include <cstdio>

namespace {

int saveScreenshot(QQuickView& view, const Options& options)
{
    if (!view.grabWindow().save(options.screenshotFile)) {
        std::fprintf(stderr, "The screenshot %s could not be saved\n", qPrintable(options.screenshotFile));
        return 1;
    }
    if (options.start == Options::Start::Play && !PlayerView(&view).showsDocument()) {
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
