// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include <QDrag>
#include <QGuiApplication>
#include <QMimeData>
#include <QPainter>
#include <QRasterWindow>
#include <QUrl>

/// Stands for a file manager: a small window in the lower left corner of the screen from which the files that
/// the command line names are dragged.
class DragSource : public QRasterWindow
{
public:
    explicit DragSource(const QStringList& files)
    {
        for (const QString& file : files)
            m_urls.append(QUrl::fromLocalFile(file));
        setFlags(Qt::FramelessWindowHint | Qt::BypassWindowManagerHint);
        setGeometry(0, 660, 60, 60);
    }

protected:
    void mousePressEvent(QMouseEvent*) override
    {
        auto* data = new QMimeData; // the drag owns it
        data->setUrls(m_urls);
        auto* drag = new QDrag(this); // deletes itself
        drag->setMimeData(data);
        drag->exec(Qt::CopyAction);
        hide(); // and lives on: the files are asked for after the drop
    }

    void paintEvent(QPaintEvent*) override { QPainter(this).fillRect(0, 0, 60, 60, Qt::yellow); }

private:
    QList<QUrl> m_urls;
};

int main(int argc, char** argv)
{
    QGuiApplication application(argc, argv);
    QGuiApplication::setQuitOnLastWindowClosed(false);
    DragSource source(application.arguments().mid(1));
    source.show();
    return QGuiApplication::exec();
}
