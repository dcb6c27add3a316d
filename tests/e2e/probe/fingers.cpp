// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "fingers.h"

#include <QGuiApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QQuickWindow>
#include <QTest>

namespace {

QQuickWindow* shownWindow()
{
    for (QWindow* window : QGuiApplication::allWindows()) {
        if (auto* quick = qobject_cast<QQuickWindow*>(window); quick && quick->isVisible())
            return quick;
    }
    return nullptr;
}

void addFinger(QTest::QTouchEventSequence& sequence, const QJsonArray& finger, QWindow& window)
{
    const int number = finger[0].toInt();
    const QPoint at = window.mapFromGlobal(QPoint(finger[1].toInt(), finger[2].toInt()));
    const QString state = finger[3].toString();
    if (state == "press")
        sequence.press(number, at, &window);
    else if (state == "release")
        sequence.release(number, at, &window);
    else
        sequence.move(number, at, &window);
}

} // namespace

void touchWindow(const QByteArray& touches)
{
    static QTouchDevice* const screen = QTest::createTouchDevice();
    QQuickWindow* window = shownWindow();
    if (!window)
        return;
    QTest::QTouchEventSequence sequence = QTest::touchEvent(window, screen, false);
    const QJsonArray fingers = QJsonDocument::fromJson(touches).array();
    for (const QJsonValue finger : fingers)
        addFinger(sequence, finger.toArray(), *window);
    sequence.commit(false);
}
