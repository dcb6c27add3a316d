// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "app/qmlcontext.h"
#include "cloud/deployment.h"

#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickView>
#include <QSignalSpy>
#include <QtTest>

#include <memory>

/// The editing frame around a live document: selection, panning, zooming.
class TestEditingFrame : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void selectionFollowsTheItem();
    void wheelZooms();
    void pressesAreReported();

private:
    QQuickItem* marker() const;
    void turnWheel(int notches);

    std::unique_ptr<QQuickView> m_view;
    QQuickItem* m_frame = nullptr;
    QQuickItem* m_document = nullptr;
};

void TestEditingFrame::init()
{
    m_view = std::make_unique<QQuickView>();
    prepareEngine(*m_view->engine(), Deployment());
    m_view->resize(400, 300);
    m_view->setResizeMode(QQuickView::SizeRootObjectToView);
    m_view->setSource(QUrl("qrc:/Nuvex/PlayerQML/Editor.qml"));
    m_frame = m_view->rootObject();
    QQmlComponent component(m_view->engine());
    component.setData("import QtQuick 2.15\nItem { width: 200; height: 100; transformOrigin: Item.TopLeft\n"
                      "Item { x: 10; y: 20; objectName: 'outer'\n"
                      "Item { x: 5; y: 5; width: 30; height: 40; objectName: 'inner' } } }",
                      QUrl());
    m_document = qobject_cast<QQuickItem*>(component.create());
    m_document->setParent(m_frame);
    m_frame->setProperty("myfill", QVariant::fromValue(m_document));
    m_view->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_view.get()));
}

void TestEditingFrame::cleanup()
{
    m_view.reset();
}

static QQuickItem* markerIn(QQuickItem* item)
{
    if (item->objectName() == "selectionRectangle")
        return item;
    for (QQuickItem* child : item->childItems())
        if (QQuickItem* found = markerIn(child))
            return found;
    return nullptr;
}

QQuickItem* TestEditingFrame::marker() const
{
    return markerIn(m_frame);
}

void TestEditingFrame::turnWheel(int notches)
{
    QWheelEvent event(QPointF(100, 50), m_view->mapToGlobal(QPoint(100, 50)), QPoint(),
                      QPoint(0, 120 * notches), Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QGuiApplication::sendEvent(m_view.get(), &event);
}

void TestEditingFrame::selectionFollowsTheItem()
{
    auto* inner = m_document->findChild<QQuickItem*>("inner");
    auto* outer = m_document->findChild<QQuickItem*>("outer");
    QVERIFY(!marker());
    QMetaObject::invokeMethod(m_frame, "itemSelected", Q_ARG(QVariant, QVariant::fromValue(inner)));
    const auto place = [this] { return marker()->mapRectToItem(m_document, marker()->boundingRect()); };
    QVERIFY(marker()->isVisible());
    QCOMPARE(place(), QRectF(15, 25, 30, 40));
    outer->setX(50);
    inner->setWidth(60);
    QCOMPARE(place(), QRectF(55, 25, 60, 40));
    QMetaObject::invokeMethod(m_frame, "itemSelected", Q_ARG(QVariant, QVariant()));
    QVERIFY(!marker());
}

void TestEditingFrame::wheelZooms()
{
    const auto border = [this] {
        return marker()->property("border").value<QObject*>()->property("width").toReal();
    };
    QMetaObject::invokeMethod(m_frame, "itemSelected", Q_ARG(QVariant, QVariant::fromValue(m_document)));
    turnWheel(1);
    QCOMPARE(m_document->scale(), 1.1);
    QCOMPARE(m_document->mapFromItem(m_frame, QPointF(100, 50)), QPointF(100, 50));
    QCOMPARE(border(), 3 / 1.1);
    turnWheel(-1);
    QCOMPARE(m_document->scale(), 0.99);
    for (int i = 0; i < 60; ++i)
        turnWheel(1);
    QCOMPARE(m_document->scale(), 10.0);
    for (int i = 0; i < 60; ++i)
        turnWheel(-1);
    QCOMPARE(m_document->scale(), 0.1);
}

void TestEditingFrame::pressesAreReported()
{
    QSignalSpy presses(m_frame, SIGNAL(itemsToEdit(QVariant)));
    QTest::mouseClick(m_view.get(), Qt::RightButton, Qt::NoModifier, QPoint(120, 80));
    QCOMPARE(presses.size(), 1);

    QTest::mousePress(m_view.get(), Qt::LeftButton, Qt::NoModifier, QPoint(100, 50));
    for (int x = 100; x <= 180; x += 20)
        QTest::mouseMove(m_view.get(), QPoint(x, 50));
    QTest::mouseRelease(m_view.get(), Qt::LeftButton, Qt::NoModifier, QPoint(180, 50));
    QVERIFY(m_document->x() > 20);
    QCOMPARE(presses.size(), 1);
}

QTEST_MAIN(TestEditingFrame)
#include "tst_editingframe.moc"
