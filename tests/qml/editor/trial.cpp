// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

// Opens the document FILE in the editor, selects and moves each of its items and takes all of it back. Prints
// "shown", or why it is not. Fails when the bytes are not what they were. A process of its own: some of what
// documents hold brings the engine down.

#include "tests/support/editorpage.h"
#include "tests/support/files.h"

#include <QGuiApplication>
#include <QTextStream>

namespace {

// Selects and moves the item with that number, if it can be; whether undoing gives `source` again.
bool tryItem(EditorPage& page, int element, const QString& source)
{
    page.run(QString("{ const item = Ejs.childrenByElement(desk.live.root, %1); if (item) "
                     "desk.selection.set([item]) }")
                 .arg(element));
    page.run("desk.changes.nudge(3, 2); desk.settle()");
    QCoreApplication::processEvents();
    if (!page.disorder().isEmpty())
        return false;
    if (page.capi().editedSourceCode() != source)
        page.run("desk.undo()");
    return page.capi().editedSourceCode() == source;
}

} // namespace

int main(int argc, char** argv)
{
    QGuiApplication application(argc, argv);
    const QString file = application.arguments().value(1);
    const QString source = QString::fromUtf8(contents(file));
    EditorPage page(source, QFileInfo(file).path());
    QTextStream out(stdout);
    if (!page.isShown()) {
        out << page.fault() << "\n";
        return 0;
    }
    const int items = page.run("Ejs.map.length").toInt();
    for (int element = 0; element < items; ++element)
        if (!tryItem(page, element, source)) {
            out << "object " << element << " does not come back: " << page.disorder() << "\n";
            return 1;
        }
    out << "shown\n";
    return 0;
}
