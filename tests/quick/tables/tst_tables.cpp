// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT
#include "quick/tables/icontable.h"
#include "quick/tables/themetable.h"

#include <QPainterPath>
#include <QQmlPropertyMap>
#include <QRawFont>
#include <QtTest>

/// The tables that QML sees as "faIcons" and "bs".
class TestTables : public QObject
{
    Q_OBJECT

    QQmlPropertyMap* m_icons = nullptr;
    QQmlPropertyMap* m_theme = nullptr;

private slots:
    void initTestCase();
    void iconRows_data();
    void iconRows();
    void everyIconHasAGlyph();
    void iconsComeInOrder();
    void themeRows_data();
    void themeRows();
    void themeHoldsOnlyColoursAndIntegers();
    void darkenedKeepsHue_data();
    void darkenedKeepsHue();
};

void TestTables::initTestCase()
{
    prepareIconTable();
    m_icons = iconTable();
    m_theme = themeTable();
    QCOMPARE(m_icons->thread(), thread());
    QCOMPARE(iconTable(), m_icons);
}

void TestTables::iconRows_data()
{
    QTest::addColumn<ushort>("codePoint");
    const std::pair<const char*, ushort> rows[] = {
        {"fa-check", 0xF00C},       {"fa-move", 0xF047},
        {"fa-resize-full", 0xF065}, {"fa-hdd", 0xF0A0},
        {"fa-bell-o", 0xF0A2},      {"fa-group", 0xF0C0},
        {"fa-sort-asc", 0xF0DD},    {"fa-mail-reply-all", 0xF122},
        {"fa-unlock-o", 0xF13E},    {"fa-ellipsis-vertical", 0xF142},
    };
    for (const auto& [name, codePoint] : rows)
        QTest::newRow(name) << codePoint;
}

void TestTables::iconRows()
{
    QFETCH(ushort, codePoint);
    const QVariant glyph = m_icons->value(QLatin1String(QTest::currentDataTag()));
    QCOMPARE(glyph.userType(), int(QMetaType::QChar));
    QCOMPARE(glyph.toChar().unicode(), codePoint);
}

void TestTables::everyIconHasAGlyph()
{
    QRawFont font(QStringLiteral(NUVEX_ICON_FONT), 16);
    QVERIFY(font.isValid());
    QStringList blank;
    const QStringList names = m_icons->keys();
    for (const QString& name : names) {
        const QChar glyph = m_icons->value(name).toChar();
        QVERIFY2(glyph.unicode() >= 0xF000 && glyph.unicode() <= 0xF196, qPrintable(name));
        QVERIFY2(font.supportsCharacter(glyph), qPrintable(name));
        if (font.pathForGlyph(font.glyphIndexesForString(glyph).constFirst()).isEmpty())
            blank += name;
    }
    // The font's later releases keep these two, as empty glyphs.
    QCOMPARE(blank, QStringList({QStringLiteral("fa-expand-o"), QStringLiteral("fa-collapse-o")}));
}

void TestTables::iconsComeInOrder()
{
    const QStringList names = m_icons->keys();
    QCOMPARE(names.size(), 371);
    QCOMPARE(names.first(), QStringLiteral("fa-glass"));
    QCOMPARE(names.last(), QStringLiteral("fa-plus-square-o"));
    QStringList outOfOrder;
    for (int i = 1; i < names.size(); ++i) {
        if (m_icons->value(names[i]).toChar() < m_icons->value(names[i - 1]).toChar())
            outOfOrder += names[i];
    }
    QCOMPARE(outOfOrder, QStringList({QStringLiteral("fa-certificate"), QStringLiteral("fa-bell-o")}));
}

void TestTables::themeRows_data()
{
    QTest::addColumn<QVariant>("value");
    const auto row = [](const char* key, const QVariant& value) { QTest::newRow(key) << value; };
    const auto color = [&row](const char* key, const char* name) { row(key, QColor(QLatin1String(name))); };
    const std::pair<const char*, int> numbers[] = {
        {"font-size-base", 14},          {"font-size-xlarge", 21},    {"font-size-h6", 12},
        {"padding-xlarge-vertical", 10}, {"border-radius-xsmall", 3}, {"caret-width-large", 5},
    };
    for (const auto& [key, number] : numbers)
        row(key, number);
    color("brand-primary", "#428bca");
    color("btn-danger-bg", "#d9534f");
    color("body-bg", "#ffffff");
    color("link-color", "#428bca");
    color("component-active-bg", "#428bca");
    color("dropdown-link-active-color", "#ffffff");
    color("input-border-focus", "#66afe9");
    color("legend-border-color", "#e5e5e5");
    color("link-hover-color", "#2a6496"); // what Bootstrap's own darken() makes of #428bca
    row("text-color", m_theme->value(QStringLiteral("gray-dark")));
    row("btn-link-disabled-color", m_theme->value(QStringLiteral("gray-light")));
    row("dropdown-header-color", m_theme->value(QStringLiteral("gray-light")));
}

void TestTables::themeRows()
{
    QFETCH(QVariant, value);
    const QVariant found = m_theme->value(QLatin1String(QTest::currentDataTag()));
    QCOMPARE(found.userType(), value.userType());
    QCOMPARE(found.toString(), value.toString()); // colours in eight bits a channel
}

void TestTables::themeHoldsOnlyColoursAndIntegers()
{
    const QStringList keys = m_theme->keys();
    QCOMPARE(keys.size(), 91);
    QCOMPARE(keys.first(), QStringLiteral("gray-darker"));
    QCOMPARE(keys.last(), QStringLiteral("thumbnail-border-radius"));
    for (const QString& key : keys) {
        const QVariant value = m_theme->value(key);
        const bool isColour = value.userType() == QMetaType::QColor && value.value<QColor>().isValid();
        QVERIFY2(isColour || value.userType() == QMetaType::Int, qPrintable(key));
    }
}

void TestTables::darkenedKeepsHue_data()
{
    QTest::addColumn<QColor>("color");
    QTest::addColumn<double>("amount");
    QTest::addColumn<QColor>("expected");
    QTest::newRow("blue") << QColor(0x42, 0x8b, 0xca) << 5. << QColor(0x35, 0x7e, 0xbd);
    QTest::newRow("white") << QColor(Qt::white) << 20. << QColor(204, 204, 204);
    QTest::newRow("not below black") << QColor(10, 10, 10) << 50. << QColor(Qt::black);
    QTest::newRow("translucent") << QColor(255, 0, 0, 51) << 25. << QColor(128, 0, 0, 51);
}

void TestTables::darkenedKeepsHue()
{
    QFETCH(QColor, color);
    QFETCH(double, amount);
    QFETCH(QColor, expected);
    QCOMPARE(darkened(color, amount).rgba(), expected.rgba());
}

QTEST_MAIN(TestTables)
#include "tst_tables.moc"
