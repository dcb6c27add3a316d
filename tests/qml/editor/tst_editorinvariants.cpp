// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "editorscript.h"
#include "tests/qmldoc/documentgenerator.h"

#include <QRandomGenerator>
#include <QRegularExpression>
#include <QtTest>

#include <algorithm>

namespace {

QVariantMap record(const QVariant& value)
{
    return value.toMap();
}

/// The records of items that are still there, by their place in the text.
QVariantList liveRecords(QVariantList map)
{
    map.erase(std::remove_if(map.begin(), map.end(),
                             [](const QVariant& r) {
                                 return record(r)["pfirst"].toInt() == record(r)["plast"].toInt();
                             }),
              map.end());
    std::sort(map.begin(), map.end(), [](const QVariant& one, const QVariant& other) {
        return record(one)["pfirst"].toInt() < record(other)["pfirst"].toInt();
    });
    return map;
}

const QRegularExpression& comments()
{
    static const QRegularExpression pattern("/\\*.*?\\*/|//[^\\n\\r]*",
                                            QRegularExpression::DotMatchesEverythingOption);
    return pattern;
}

/// Whether `after` is `before` with one range within [beg, end) replaced.
bool onlyChangedWithin(const QString& before, int beg, int end, const QString& after)
{
    const QStringRef head = before.leftRef(beg), tail = before.midRef(end);
    return after.size() >= head.size() + tail.size() && after.startsWith(head) && after.endsWith(tail);
}

/// Whether `after` is `before` with something put in at one place.
bool isInsertion(const QString& before, const QString& after)
{
    const auto differs = std::mismatch(before.begin(), before.end(), after.begin(), after.end()).first;
    return after.endsWith(before.midRef(int(differs - before.begin())));
}

/// Both texts around the place where they begin to differ.
QString excerpts(const QString& before, const QString& after)
{
    const auto differs = std::mismatch(before.begin(), before.end(), after.begin(), after.end()).first;
    const int at = qMax(0, int(differs - before.begin()) - 150);
    return "\n" + before.mid(at, 400) + "\n--- became ---\n" + after.mid(at, 400);
}

} // namespace

/// Any sequence of edits leaves the script's map as a fresh parse of the text has it, and the text outside
/// each edit as it was. The documents are wilder than any that people write.
class TestEditorInvariants : public QObject
{
    Q_OBJECT

private slots:
    void edits_data();
    void edits();

private:
    void edit(QRandomGenerator& random);
    void updateProperty(QRandomGenerator& random, const QVariantMap& item);
    void addProperty(const QVariantMap& item);
    void addObject();
    void removeElement(const QVariantMap& item);
    bool isRemovable(const QVariantMap& item) const;
    void compareMaps();

    EditorScript m_script;
    QVariantList m_map; // the script's
    int m_names = 0;
};

void TestEditorInvariants::edits_data()
{
    QTest::addColumn<int>("firstSeed");
    for (int seed = 0; seed < 1500; seed += 100)
        QTest::addRow("documents from %d", seed) << seed;
}

void TestEditorInvariants::edits()
{
    QFETCH(int, firstSeed);
    for (int seed = firstSeed; seed < firstSeed + 100; ++seed) {
        const Flavour flavour = seed % 3 ? Flavour::Parses : Flavour::Instantiates;
        const QString text = generateDocument(unsigned(seed), flavour).text;
        m_script.open(text);
        m_map = m_script.map();
        QRandomGenerator random{quint32(seed)};
        for (int i = 0; i < 8 && !m_map.isEmpty(); ++i) {
            const QString before = m_script.source();
            edit(random);
            compareMaps();
            if (QTest::currentTestFailed()) {
                qWarning().noquote() << "seed" << seed << "edit" << i << excerpts(before, m_script.source());
                return;
            }
        }
    }
}

void TestEditorInvariants::edit(QRandomGenerator& random)
{
    const int element = random.bounded(m_map.size());
    const QVariantMap item = record(m_map[element]);
    if (item["pfirst"] == item["plast"])
        return;
    m_script.run("Ejs.element = a", {element});
    switch (random.bounded(4)) {
    case 0:
        return addProperty(item);
    case 1:
        return addObject();
    case 2:
        if (isRemovable(item))
            return removeElement(item);
        Q_FALLTHROUGH();
    default:
        updateProperty(random, item);
    }
}

void TestEditorInvariants::updateProperty(QRandomGenerator& random, const QVariantMap& item)
{
    const QVariantMap properties = item["properties"].toMap();
    if (properties.isEmpty())
        return addProperty(item);
    const QString name = properties.keys().at(random.bounded(properties.size()));
    const QVariantMap property = properties[name].toMap();
    const int first = property["pfirst"].toInt(), last = property["plast"].toInt();
    const QString before = m_script.source();
    const QString text = before.mid(first, last - first);
    if (text.startsWith("signal") || text.contains("required")) // have no values
        return;
    const QStringList values{"7",        "\"$& $1 {\"",         "function () { return 1 }",
                             "[1,\n 2]", "Qt.rgba(0, 0, 0, 1)", "a ? b : c"};
    const bool isList = QString(text).remove(comments()).contains(QRegularExpression("^property\\s*list<"));
    m_script.run("Ejs.updateProperty(a, b)",
                 {name, isList ? "[Component { }]" : values[random.bounded(values.size())]});
    QVERIFY(onlyChangedWithin(before, first, last, m_script.source()));
}

void TestEditorInvariants::addProperty(const QVariantMap& item)
{
    const QString before = m_script.source();
    const QString name = QString("added%1").arg(m_names++);
    m_script.run("Ejs.updateProperty(a, 'width + 1')", {name});
    QVERIFY(isInsertion(before, m_script.source()));
    const int at = m_script.source().indexOf(name + " : width + 1");
    QVERIFY(at >= item["pfirstL"].toInt() &&
            at < item["plast"].toInt() + m_script.source().size() - before.size());
}

void TestEditorInvariants::addObject()
{
    const QString before = m_script.source();
    m_script.run("Ejs.addObject(CAPI.parseAndGetMap(a)[0], a, true)",
                 {"\nBasicText {\n    text: \"\U0001F355\"\n}\n"});
    QVERIFY(isInsertion(before, m_script.source()));
}

/// Neither the whole document, nor what gives an inline component its body or a list its only entry.
bool TestEditorInvariants::isRemovable(const QVariantMap& item) const
{
    const QString head = m_script.source().left(item["pfirst"].toInt()).remove(comments()).trimmed();
    const QString tail = m_script.source().mid(item["plast"].toInt()).remove(comments()).trimmed();
    const bool isRoot = tail.isEmpty();
    return !isRoot && !head.endsWith(':') && !(head.endsWith('[') && tail.startsWith(']'));
}

void TestEditorInvariants::removeElement(const QVariantMap& item)
{
    const QString before = m_script.source();
    m_script.run("Ejs.removeElement()");
    QVERIFY(isInsertion(m_script.source(), before));
    QVERIFY(before.size() - m_script.source().size() >= item["plast"].toInt() - item["pfirst"].toInt());
}

void TestEditorInvariants::compareMaps()
{
    m_map = m_script.map();
    const QVariantList kept = liveRecords(m_map);
    const QVariantList fresh = liveRecords(EditingSession::parseAndGetMap(m_script.source()));
    QVERIFY2(!fresh.isEmpty(), "the text does not parse any more");
    QCOMPARE(kept.size(), fresh.size());
    for (int i = 0; i < fresh.size(); ++i)
        QCOMPARE(kept[i], fresh[i]);
}

QTEST_MAIN(TestEditorInvariants)
#include "tst_editorinvariants.moc"
