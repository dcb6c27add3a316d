// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "qmldoc/qmldocument.h"
#include "tests/qmldoc/documentgenerator.h"

#include <QQmlComponent>
#include <QQmlEngine>
#include <QTest>

#include <memory>

Q_DECLARE_METATYPE(Flavour)

class TestGeneratedDocuments : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { m_engine.setOutputWarningsToStandardError(false); }
    void mapAndTextAreExact_data();
    void mapAndTextAreExact();
    void editorTextShowsWheneverTheSourceDoes();

private:
    QString errors(const QString& text);

    QQmlEngine m_engine;
};

void TestGeneratedDocuments::mapAndTextAreExact_data()
{
    QTest::addColumn<Flavour>("flavour");
    QTest::addColumn<unsigned>("count");
    QTest::newRow("any constructs") << Flavour::Parses << 5000U;
    QTest::newRow("real types") << Flavour::Instantiates << 1000U;
}

void TestGeneratedDocuments::mapAndTextAreExact()
{
    QFETCH(Flavour, flavour);
    QFETCH(unsigned, count);
    for (unsigned seed = 0; seed < count; ++seed) {
        const GeneratedDocument expected = generateDocument(seed, flavour);
        QmlDocument document;
        QVERIFY2(document.parse(expected.text, 0),
                 qPrintable(QString("seed %1\n").arg(seed) + expected.text));
        const QString editorText = document.generatedText();
        QCOMPARE(editorText, expected.editorText);
        const QVariantList map = document.itemMap();
        QCOMPARE(map.size(), expected.map.size());
        for (int i = 0; i < map.size(); ++i)
            QVERIFY2(map.at(i) == expected.map.at(i), qPrintable(expected.text));

        QVERIFY2(document.parse(editorText, 0), qPrintable(editorText));
        QCOMPARE(document.objectCount(), map.size());
    }
}

void TestGeneratedDocuments::editorTextShowsWheneverTheSourceDoes()
{
    for (unsigned seed = 0; seed < 500; ++seed) {
        const GeneratedDocument generated = generateDocument(seed, Flavour::Instantiates);
        QVERIFY2(errors(generated.text).isEmpty(), qPrintable(errors(generated.text) + generated.text));
        QVERIFY2(errors(generated.editorText).isEmpty(),
                 qPrintable(errors(generated.editorText) + generated.text));
    }
}

QString TestGeneratedDocuments::errors(const QString& text)
{
    QQmlComponent component(&m_engine);
    component.setData(text.toUtf8(), QUrl());
    const std::unique_ptr<QObject> object(component.create());
    m_engine.clearComponentCache();
    return object ? QString() : component.errorString();
}

QTEST_GUILESS_MAIN(TestGeneratedDocuments)
#include "tst_generateddocuments.moc"
