// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "qmldoc/qmldocument.h"
#include "tests/support/logcapture.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>

namespace {

const QDir goldenFolder(QStringLiteral(NUVEX_TEST_DATA "/qmldoc"));

QByteArray golden(const QString& fileName)
{
    QFile file(goldenFolder.filePath(fileName));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no file " + fileName.toUtf8());
}

// The text as it stands in the file, with its byte-order mark.
QString withByteOrderMark(const QByteArray& bytes)
{
    const bool marked = bytes.startsWith("\xef\xbb\xbf");
    return (marked ? QString(QChar(QChar::ByteOrderMark)) : QString()) + QString::fromUtf8(bytes);
}

QString nestedObjects(int depth)
{
    return QStringLiteral("Item{").repeated(depth) + QStringLiteral("}").repeated(depth);
}

QVariantMap record(const QVariantList& map, int i)
{
    return map.at(i).toMap();
}

QVariantMap propertyRecord(const QVariantList& map, int i, const QString& name)
{
    return record(map, i)["properties"].toMap()[name].toMap();
}

} // namespace

class TestQmlDocument : public QObject
{
    Q_OBJECT

private slots:
    void goldenFiles_data();
    void goldenFiles();
    void numbersFromTheGivenElement();
    void mapEmptiesTheGeneratedText();
    void failedParseKeepsTheObjects_data();
    void failedParseKeepsTheObjects();
    void valuesAreCutFromTheTextAsItIs();
    void fiveThousandLines();
    void objectsNestTo1364();
    void deepAndLongConstructs_data();
    void deepAndLongConstructs();
};

void TestQmlDocument::goldenFiles_data()
{
    QTest::addColumn<QString>("name");
    for (const QString& input : goldenFolder.entryList({"*.in.qml"}))
        QTest::newRow(qPrintable(input)) << input.chopped(7);
    QVERIFY(goldenFolder.entryList({"*.in.qml"}).size() >= 10);
}

void TestQmlDocument::goldenFiles()
{
    QFETCH(QString, name);
    const QString source = withByteOrderMark(golden(name + ".in.qml"));
    QmlDocument document;
    document.parse(source, 0);
    QCOMPARE(document.generatedText(), withByteOrderMark(golden(name + ".generated.qml")));
    QJsonParseError error;
    const QJsonArray expected = QJsonDocument::fromJson(golden(name + ".map.json"), &error).array();
    QCOMPARE(error.errorString(), QString("no error occurred"));
    const QJsonArray map = QJsonArray::fromVariantList(document.itemMap());
    QCOMPARE(map.size(), expected.size());
    for (int i = 0; i < map.size(); ++i)
        QCOMPARE(QJsonDocument(map.at(i).toObject()).toJson(),
                 QJsonDocument(expected.at(i).toObject()).toJson());
}

void TestQmlDocument::numbersFromTheGivenElement()
{
    const QString source = "Item { Rectangle { } Text { } }";
    QmlDocument document;
    for (const int first : {5, -2, INT_MAX - 1}) {
        QVERIFY(document.parse(source, first));
        QStringList numbers;
        for (const QString& line : document.generatedText().split('\n'))
            if (line.startsWith("property int element: "))
                numbers.append(line.mid(22));
        const qint64 n = first;
        QCOMPARE(numbers, QStringList({QString::number(n), QString::number(n + 1), QString::number(n + 2)}));
    }
}

void TestQmlDocument::mapEmptiesTheGeneratedText()
{
    const QString source = "Item { }";
    QmlDocument document;
    QVERIFY(document.itemMap().isEmpty());
    document.parse(source, 0);
    QVERIFY(!document.generatedText().isEmpty());
    document.propertiesOfObject(0);
    QVERIFY(document.generatedText().isEmpty());
}

void TestQmlDocument::failedParseKeepsTheObjects_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("logged");
    QTest::newRow("empty") << ""
                           << "1:1";
    QTest::newRow("no document") << "width: 1"
                                 << "1:6";
    QTest::newRow("unclosed object") << "Item {\n Text { }\n"
                                     << "3:1";
    QTest::newRow("unclosed comment") << "Item { }\n/* "
                                      << "2:1";
    QTest::newRow("unclosed string") << "Item { x: \"a\n }"
                                     << "1:11";
    QTest::newRow("two roots") << "Item { } Text { }"
                               << "1:10";
    QTest::newRow("script") << "var a = 1"
                            << "1:1";
    QTest::newRow("too deep") << nestedObjects(1365) << "nested too deep";
    QTest::newRow("too long") << "Item{}" + QString(16 * 1024 * 1024, ' ') << "too long";
}

void TestQmlDocument::failedParseKeepsTheObjects()
{
    QFETCH(QString, text);
    QFETCH(QString, logged);
    const QString good = "Item { x: 1; Text { text: \"a\" } }";
    QmlDocument document;
    QVERIFY(document.parse(good, 0));
    const QVariantList before = document.itemMap();

    const LogCapture log;
    QVERIFY(!document.parse(text, 3));
    QVERIFY2(log.contains(logged), qPrintable(log.messages().join('\n')));
    QCOMPARE(document.generatedText(), text);
    QCOMPARE(document.objectCount(), 2);
    const QVariantList after = document.itemMap();
    for (int i = 0; i < 2; ++i)
        for (const char* position : {"pfirst", "pfirstL", "plast", "typename"})
            QCOMPARE(record(after, i)[position], record(before, i)[position]);

    QVERIFY(document.parse(good, 0));
    QCOMPARE(document.itemMap(), before);
}

void TestQmlDocument::valuesAreCutFromTheTextAsItIs()
{
    QString source = "Item { width: 100 }";
    QmlDocument document;
    document.parse(source, 0);
    source.replace("width: 100", "depth: 250");
    QCOMPARE(propertyRecord(document.itemMap(), 0, "depth")["value"].toString(), QString("250"));
    source.truncate(9);
    QCOMPARE(propertyRecord(document.itemMap(), 0, "de")["value"].toString(), QString());
}

void TestQmlDocument::fiveThousandLines()
{
    QString source = "import QtQuick 2.15\r\nItem {\r\n";
    QVector<int> begins;
    while (source.count('\n') < 4999) {
        begins.append(source.size());
        source += "Text {\t// 😀\r\nx: 10;\r\n text: \"" + QString::number(begins.size()) + "😀\"}\r\n";
    }
    source += "}";
    QmlDocument document;
    QVERIFY(document.parse(source, 0));
    const QVariantList map = document.itemMap();
    QCOMPARE(map.size(), begins.size() + 1);
    for (int i = 0; i < begins.size(); ++i) {
        QCOMPARE(record(map, i)["pfirst"].toInt(), begins.at(i));
        const QVariantMap text = propertyRecord(map, i, "text");
        QCOMPARE(text["value"].toString(), '"' + QString::number(i + 1) + "😀\"");
        QCOMPARE(record(map, i)["plast"].toInt(), text["plast"].toInt() + 1);
        QCOMPARE(source.mid(text["pfirst"].toInt(), 5), QString("text:"));
    }
    QCOMPARE(record(map, begins.size())["plast"].toInt(), source.size());
}

void TestQmlDocument::objectsNestTo1364()
{
    QmlDocument document;
    const QString most = nestedObjects(1364);
    QVERIFY(document.parse(most, 0));
    const QVariantList map = document.itemMap();
    QCOMPARE(map.size(), 1364);
    for (int i = 0; i < map.size(); ++i) {
        QCOMPARE(record(map, i)["pfirst"].toInt(), (1363 - i) * 5);
        QCOMPARE(record(map, i)["plast"].toInt(), 1364 * 5 + i + 1);
    }
    const QString tooMany = nestedObjects(1365);
    QVERIFY(!document.parse(tooMany, 0));
}

void TestQmlDocument::deepAndLongConstructs_data()
{
    constexpr int many = 100000;
    const auto times = [](const char* text) { return QString(text).repeated(many); };
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("objects"); // -1 when it is refused
    QTest::addColumn<QString>("value");
    const auto binding = [](const char* name, const QString& value, int objects = 1) {
        QTest::newRow(name) << "Item { x: " + value + " }" << objects << value;
    };
    QTest::newRow("objects") << nestedObjects(many) << -1 << "";
    QTest::newRow("object bindings") << "Item { " + times("a: Item { ") + times("}") + "}" << -1 << "";
    QTest::newRow("lists") << "Item { " + times("a: [ Item { ") + times("} ]") + "}" << -1 << "";
    QTest::newRow("components") << "Item { " + times("Component { ") + times("} ") + " x: 2 }" << -1 << "";
    QTest::newRow("unclosed objects") << times("Item { ") << -1 << "";
    QTest::newRow("siblings") << "Item { " + times("Text{}") + " x: 2 }" << many + 1 << "2";
    QTest::newRow("members") << "Item { " + times("y: 1\n") + " x: 2 }" << 1 << "2";
    QTest::newRow("list elements") << "Item { a: [" + times("Text{},") + "Text{}] x: 2 }" << many + 2 << "2";
    binding("parentheses", times("(") + "1" + times(")"));
    binding("square brackets", times("[") + times("]"));
    binding("braces", "{" + times("{") + times("}") + "}");
    binding("functions", times("function(){return ") + "1" + times("}"));
    binding("sum", times("1+") + "1");
    binding("assignments", times("a=") + "1");
    binding("conditions", times("a?b:") + "1");
    binding("calls", "a" + times("()"));
    binding("negations", times("!") + "1");
    binding("else after else", times("if(a)b();else ") + "c()");
    binding("statements", "{" + times("a();") + "}");
    binding("templates", times("`${") + "1" + times("}`"));
    QTest::newRow("unclosed brackets") << "Item { x: " + times("(") << -1 << "";
}

void TestQmlDocument::deepAndLongConstructs()
{
    QFETCH(QString, text);
    QFETCH(int, objects);
    QFETCH(QString, value);
    QmlDocument document;
    const LogCapture log;
    QCOMPARE(document.parse(text, 0), objects >= 0);
    QCOMPARE(document.objectCount(), std::max(0, objects));
    if (objects < 0) {
        QCOMPARE(document.generatedText(), text);
        return;
    }
    const QVariantList map = document.itemMap();
    QCOMPARE(map.size(), objects);
    QVERIFY(propertyRecord(map, objects - 1, "x")["value"].toString() == value);
}

QTEST_APPLESS_MAIN(TestQmlDocument)
#include "tst_qmldocument.moc"
