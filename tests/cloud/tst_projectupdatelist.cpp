// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "cloud/projectupdatelist.h"

#include <QTest>

class TestProjectUpdateList : public QObject
{
    Q_OBJECT

private slots:
    void listsAndRevisions();
    void listsOfUnequalLength();
};

void TestProjectUpdateList::listsAndRevisions()
{
    ProjectUpdateList list;
    list.setListOfProjectsToUpdate(QStringLiteral("shop,lobby,shop"), QStringLiteral("bar"));
    QCOMPARE(list.getListOfProjectsToUpdate(), (QVariantList{"bar", "lobby", "shop"}));
    list.setProjectsRev(QStringLiteral("shop,new"), QStringLiteral("7,8"));
    QCOMPARE(list.getListOfProjectsToUpdate(), (QVariantList{"bar", "lobby", "new", "shop"}));

    list.setListOfProjectsToUpdate(QStringLiteral("shop"), QString());
    QCOMPARE(list.getListOfProjectsToUpdate(), (QVariantList{"shop"}));
    QCOMPARE(list.revision("shop"), QStringLiteral("7"));
    list.setListOfProjectsToUpdate(QStringLiteral("new"), QString());
    QCOMPARE(list.revision("new"), QString());
    list.setListOfProjectsToUpdate(QString(), QString());
    QVERIFY(list.getListOfProjectsToUpdate().isEmpty());
}

void TestProjectUpdateList::listsOfUnequalLength()
{
    ProjectUpdateList list;
    list.setProjectsRev(QStringLiteral("a,,b,c"), QStringLiteral("1,2,3"));
    QCOMPARE(list.getListOfProjectsToUpdate(), (QVariantList{"a", "b"}));
    QCOMPARE(list.revision("b"), QStringLiteral("3"));
    list.setProjectsRev(QStringLiteral("a"), QStringLiteral("4,5"));
    QCOMPARE(list.getListOfProjectsToUpdate(), (QVariantList{"a", "b"}));
    QCOMPARE(list.revision("a"), QStringLiteral("4"));
}

QTEST_GUILESS_MAIN(TestProjectUpdateList)
#include "tst_projectupdatelist.moc"
