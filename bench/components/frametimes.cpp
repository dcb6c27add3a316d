// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include <QElapsedTimer>
#include <QMutex>
#include <QQmlExtensionPlugin>
#include <QQuickItem>
#include <QQuickWindow>
#include <QVector>
#include <QtQml>

/// Takes down when the frames of its window appear on the screen.
class FrameTimes : public QQuickItem
{
    Q_OBJECT

public:
    /// Milliseconds between the frames since the last call. GUI thread.
    Q_INVOKABLE QVector<qreal> take()
    {
        const QMutexLocker lock(&m_mutex);
        m_clock.invalidate();
        return std::exchange(m_times, {});
    }

protected:
    void itemChange(ItemChange change, const ItemChangeData& data) override
    {
        if (change == ItemSceneChange && data.window)
            connect(data.window, &QQuickWindow::frameSwapped, this, &FrameTimes::note, Qt::DirectConnection);
        QQuickItem::itemChange(change, data);
    }

private:
    // In the thread that draws.
    void note()
    {
        const QMutexLocker lock(&m_mutex);
        if (m_clock.isValid())
            m_times.append(qreal(m_clock.nsecsElapsed()) / 1e6);
        m_clock.start();
    }

    QMutex m_mutex;
    QElapsedTimer m_clock;
    QVector<qreal> m_times;
};

/// The QML module "FrameTimes" 1.0, for benchmarks.
class FrameTimesPlugin : public QQmlExtensionPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QQmlExtensionInterface_iid)

public:
    void registerTypes(const char* uri) override { qmlRegisterType<FrameTimes>(uri, 1, 0, "FrameTimes"); }
};

#include "frametimes.moc"
