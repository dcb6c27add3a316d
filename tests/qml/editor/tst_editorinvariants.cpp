// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "editorscript.h"
#include "tests/qmldoc/documentgenerator.h"

#include <QRandomGenerator>
#include <QtTest>

#include <algorithm>

namespace {

/// The records of items that are there, by their place in the text.
QVariantList liveRecords(QVariantList map)
{
    const auto isGone = [](const QVariant& r) { return r.toMap()["pfirst"] == r.toMap()["plast"]; };
    map.erase(std::remove_if(map.begin(), map.end(), isGone), map.end());
    std::sort(map.begin(), map.end(), [](const QVariant& one, const QVariant& other) {
        return one.toMap()["pfirst"].toInt() < other.toMap()["pfirst"].toInt();
    });
    return map;
}

/// The characters of the text that are neither blanks nor commas, which moves may change.
QString solid(const QString& text)
{
    QString kept;
    std::copy_if(text.begin(), text.end(), std::back_inserter(kept),
                 [](QChar c) { return !c.isSpace() && c != ','; });
    std::sort(kept.begin(), kept.end());
    return kept;
}

} // namespace

/// Any sequence of changes, many of them with text that has no place in a document, either changes nothing
/// and says why, or leaves the script's map as a fresh parse of the text has it, every item under its number
/// and all else as it was. The documents are wilder than any that people write.
class TestEditorInvariants : public QObject
{
    Q_OBJECT

private slots:
    void changes_data();
    void changes();

private:
    int anyItem() { return m_random.bounded(m_map.size()); }
    QString any(const QStringList& list) { return list.at(m_random.bounded(list.size())); }
    QString anyName(const QVariantMap& record);
    bool change();
    void compareMaps(const QString& before);
    void compareItems(const QVariantList& before);

    EditorScript m_script;
    QRandomGenerator m_random;
    QVariantList m_map; // the script's
    QString m_call;
    int m_done = 0;
};

void TestEditorInvariants::changes_data()
{
    QTest::addColumn<int>("firstSeed");
    for (int seed = 0; seed < 1500; seed += 100)
        QTest::addRow("documents from %d", seed) << seed;
}

void TestEditorInvariants::changes()
{
    QFETCH(int, firstSeed);
    m_done = 0;
    for (int seed = firstSeed; seed < firstSeed + 100; ++seed) {
        const Flavour flavour = seed % 3 ? Flavour::Parses : Flavour::Instantiates;
        m_script.open(generateDocument(unsigned(seed), flavour).text);
        m_map = m_script.map();
        m_random.seed(quint32(seed));
        for (int i = 0; i < 8; ++i) {
            const QString before = m_script.source();
            const QVariantList map = m_map;
            const bool done = change();
            m_map = m_script.map();
            if (done) {
                ++m_done;
                compareMaps(before);
                compareItems(map);
            } else {
                QCOMPARE(m_script.source(), before);
                QCOMPARE(m_map, map);
                QVERIFY2(m_script.run("Ejs.problem").toString().size() > 10, qPrintable(m_call));
            }
            if (QTest::currentTestFailed()) {
                qWarning().noquote() << "seed" << seed << m_call << "\n"
                                     << before << "\n--- became ---\n"
                                     << m_script.source();
                return;
            }
        }
    }
    QVERIFY(m_done > 300); // of 800: most are not refused
}

QString TestEditorInvariants::anyName(const QVariantMap& record)
{
    const QStringList names = record["properties"].toMap().keys();
    return names.isEmpty() || m_random.bounded(3) == 0
               ? any({"added", "font.bold", "anchors.fill", "transform", "states"})
               : any(names);
}

/// Whether the script says that it made the change.
bool TestEditorInvariants::change()
{
    static const QStringList values{
        "7", "\"$& $1 {\"", "function () {\n return 1 }", "[1,\r\n 2]", "a ? b : c", "Text { Row { } }",
        "[Text { }]", "{ a(); b() }", "`}${\"{\"}`", "/[}/]/",
        // and what is no value, or none that can stand everywhere
        "", "1 // c", "1 /* c", "1; q: 2", "}", "1 }\nItem { x: 2", "\"a", "1\n\nText { }"};
    static const QStringList objects{"\nBasicText {\n    text: \"\U0001F355\"\n}\n",
                                     "Row { Text { } Text { } }",
                                     "Text { } // c",
                                     "Text { id: added }\nRow { }",
                                     "Text {",
                                     "x: 1",
                                     ""};
    static const QStringList imports{"", "import QtQuick.Layouts 1.15", "import \"x\" as X",
                                     "pragma Singleton"};
    const int item = anyItem(), other = anyItem();
    const QVariantMap record = m_map[item].toMap();
    m_script.run("Ejs.element = a", {item});
    const QString import = any(imports);
    const QStringList lines = import.isEmpty() ? QStringList() : QStringList(import);
    switch (m_random.bounded(9)) {
    case 0:
        m_call = "removeElements";
        return m_script.run("Ejs.removeElements([a, b])", {item, m_random.bounded(2) ? item : other})
            .toBool();
    case 1:
        m_call = "moveElements";
        return m_script
            .run("Ejs.moveElements([a], b, c)", {item, other, m_random.bounded(2) ? -1 : anyItem()})
            .toBool();
    case 2:
        m_call = "paste";
        return m_script.run("Ejs.paste(a, b)", {any(objects), lines}).toBool();
    case 3:
        m_call = "insertObject";
        return m_script.run("Ejs.insertObject(a, b, -1, c)", {any(objects), item, lines}).toBool();
    case 4:
        m_call = "replaceElement";
        return m_script.run("Ejs.replaceElement(a)", {any(objects)}).toBool();
    case 5: {
        m_call = "updateProperties";
        QVariantList values;
        for (int i = m_random.bounded(2, 7); i > 0; --i) {
            const int number = anyItem();
            values.append(QVariantMap{{"element", number},
                                      {"name", anyName(m_map[number].toMap())},
                                      {"text", QString::number(m_random.bounded(10000))}});
        }
        return m_script.run("Ejs.updateProperties(a)", {QVariant(values)}).toBool();
    }
    default:
        const QString name = anyName(record), value = any(values);
        m_call = "updateProperty " + name + " " + value;
        return m_script.run("Ejs.updateProperty(a, b)", {name, value}).toBool();
    }
}

void TestEditorInvariants::compareMaps(const QString& before)
{
    const QVariantList kept = liveRecords(m_map);
    const QVariantList fresh = liveRecords(m_script.api->parseAndGetMap(m_script.source()));
    QVERIFY2(!fresh.isEmpty(), "the text does not parse any more");
    QCOMPARE(kept.size(), fresh.size());
    for (int i = 0; i < fresh.size(); ++i)
        QCOMPARE(kept[i], fresh[i]);
    if (m_call == "moveElements" && !before.contains("list<"))
        QCOMPARE(solid(m_script.source()), solid(before));
}

/// Every number still means an item of the same type.
void TestEditorInvariants::compareItems(const QVariantList& before)
{
    for (int i = 0; i < before.size(); ++i) {
        if (m_map[i].toMap()["pfirst"] != m_map[i].toMap()["plast"] && m_call != "replaceElement")
            QCOMPARE(m_map[i].toMap()["typename"], before[i].toMap()["typename"]);
    }
}

QTEST_MAIN(TestEditorInvariants)
#include "tst_editorinvariants.moc"
