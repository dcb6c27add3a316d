// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "quick/live/snapping.h"

#include <QtTest>

Q_DECLARE_METATYPE(Qt::Edges)

/// Where a dragged rectangle comes to rest, in an area of 1000 by 1000.
class TestSnapping : public QObject
{
    Q_OBJECT

private slots:
    void rests_data();
    void rests();
};

namespace {

using Rects = QVector<QRectF>;

// As "x1,y1-x2,y2 distance", gaps with a star.
QStringList told(const QVector<Snapping::Guide>& guides)
{
    QStringList list;
    for (const Snapping::Guide& guide : guides)
        list.append(QString("%1,%2-%3,%4 %5%6")
                        .arg(guide.line.x1())
                        .arg(guide.line.y1())
                        .arg(guide.line.x2())
                        .arg(guide.line.y2())
                        .arg(guide.distance)
                        .arg(guide.isGap ? "*" : ""));
    return list;
}

} // namespace

void TestSnapping::rests_data()
{
    QTest::addColumn<Rects>("siblings");
    QTest::addColumn<QRectF>("rect");
    QTest::addColumn<Qt::Edges>("edges");
    QTest::addColumn<QPointF>("offset");
    QTest::addColumn<QStringList>("guides");

    const Qt::Edges none;
    const Rects one{{100, 100, 200, 50}};
    QTest::newRow("out of reach") << one << QRectF(310, 400, 77, 33) << none << QPointF() << QStringList();
    QTest::newRow("left edges, above each other")
        << one << QRectF(104, 400, 77, 33) << none << QPointF(-4, 0) << QStringList{"100,100-100,433 250"};
    QTest::newRow("own right at the other's left")
        << one << QRectF(18, 400, 77, 33) << none << QPointF(5, 0) << QStringList{"100,100-100,433 250"};
    QTest::newRow("centres both ways: of the area")
        << Rects() << QRectF(448, 473, 100, 50) << none << QPointF(2, 2)
        << QStringList{"500,0-500,1000 0", "0,500-1000,500 0"};
    QTest::newRow("the nearer of two") << Rects{{0, 0, 50, 50}, {3, 100, 50, 50}} << QRectF(4, 300, 70, 30)
                                       << none << QPointF(-1, 0) << QStringList{"3,100-3,330 150"};
    QTest::newRow("in the middle between two")
        << Rects{{100, 50, 100, 150}, {500, 60, 103, 170}} << QRectF(303, 100, 91, 37) << none
        << QPointF(1.5, 0) << QStringList{"200,118.5-304.5,118.5 104.5*", "395.5,118.5-500,118.5 104.5*"};
    QTest::newRow("the next gap of a row")
        << Rects{{100, 50, 100, 150}, {230, 50, 100, 150}} << QRectF(357, 80, 77, 30) << none << QPointF(3, 0)
        << QStringList{"330,95-360,95 30*", "200,125-230,125 30*"};
    QTest::newRow("bottom edge alone") << one << QRectF(400, 20, 77, 126) << Qt::Edges(Qt::BottomEdge)
                                       << QPointF(0, 4) << QStringList{"100,150-477,150 100"};
    QTest::newRow("corner") << one << QRectF(303, 153, 200, 200) << Qt::Edges(Qt::LeftEdge | Qt::TopEdge)
                            << QPointF(-3, -3) << QStringList{"300,100-300,353 0", "100,150-503,150 0"};
}

void TestSnapping::rests()
{
    QFETCH(Rects, siblings);
    QFETCH(QRectF, rect);
    QFETCH(Qt::Edges, edges);
    QFETCH(QPointF, offset);
    QFETCH(QStringList, guides);
    Snapping snapping;
    snapping.gather(siblings, QRectF(0, 0, 1000, 1000));
    const Snapping::Result result = edges ? snapping.resize(rect, edges, 6) : snapping.move(rect, 6);
    QCOMPARE(result.offset, offset);
    QCOMPARE(told(result.guides), guides);
}

QTEST_APPLESS_MAIN(TestSnapping)
#include "tst_snapping.moc"
