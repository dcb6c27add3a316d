// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QUrl>

class QQuickItem;

/// The QML type "ProjectStill" of "Nuvex.Native" 1.1: the still picture of a project of the CAPI that the
/// engine's context property of that name holds; without one there is none.
class ProjectStill : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString project READ project WRITE setProject NOTIFY projectChanged)
    Q_PROPERTY(QUrl source READ source NOTIFY projectChanged)

public:
    QString project() const { return m_project; }
    void setProject(const QString& project);
    /// The picture as it was when `project` was set, empty where there is none. One that was taken again has
    /// another address.
    QUrl source() const;

    /// Takes the picture that `item` shows now for `project`. It is drawn with the window's next frame and
    /// written in the background; a failure is logged.
    Q_INVOKABLE void take(QQuickItem* item) const;

signals:
    void projectChanged();

private:
    QString file() const;

    QString m_project;
};
