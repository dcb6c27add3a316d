// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

// Checks what holds for the map and the editor text of any document. Input that begins with the byte 255 is
// the number of a generated document and a list of damages to it; any other is the text itself.

#include "qmldoc/editingsession.h"
#include "qmldoc/itemprototype.h"
#include "tests/qmldoc/documentgenerator.h"

#include <QLoggingCategory>

#include <cstdlib>

namespace {

void require(bool holds)
{
    if (!holds)
        std::abort();
}

void checkProperty(const QString& source, const QVariantMap& record, const QVariantMap& property)
{
    const int begin = property["pfirst"].toInt();
    const int end = property["plast"].toInt();
    const QString value = property["value"].toString();
    require(begin >= record["pfirstL"].toInt() && begin < end && end < record["plast"].toInt());
    require(value.size() < end - begin);
    require(source.midRef(end - value.size(), value.size()) == value);
}

void checkRecord(const QString& source, const QVariantMap& record)
{
    const int bodyBegin = record["pfirstL"].toInt();
    const int end = record["plast"].toInt();
    require(record["pfirst"].toInt() >= 0 && record["pfirst"].toInt() < bodyBegin && bodyBegin < end);
    require(end <= source.size() && source.at(end - 1) == '}' && source.at(bodyBegin - 1) == '{');
    for (const QVariant& property : record["properties"].toMap())
        checkProperty(source, record, property.toMap());
}

void checkMap(const QString& source, const QVariantList& map)
{
    int last = 0;
    for (const QVariant& record : map) {
        require(record.toMap()["plast"].toInt() > last);
        last = record.toMap()["plast"].toInt();
        checkRecord(source, record.toMap());
    }
}

// Each damage is four bytes: two for the place, one for the length that goes, one for the token that comes.
QString damaged(QString text, const QByteArray& damages)
{
    static const QStringList tokens{
        "",     " ",  "\n",  "\r", ";",       ":",         ",",       ".",        "{",    "}",
        "[",    "]",  "(",   ")",  "//",      "/*",        "*/",      "`",        "${",   "\"",
        "'",    "/",  "=>",  "=",  "?",       "@A{}",      "x",       "1",        "++",   "-",
        "!",    "on", "if",  "do", "else ",   "return ",   "async ",  "function", "var ", "yield ",
        "Item", "A{", "A{}", "a:", "signal ", "property ", "enum E{", "default ", "\0",   "\u2028"};
    for (int i = 0; i + 3 < damages.size(); i += 4) {
        const qint64 share = uchar(damages[i]) << 8 | uchar(damages[i + 1]);
        const int place = int(share * text.size() / 65536);
        const int length = uchar(damages[i + 2]) % 4 ? 0 : uchar(damages[i + 2]) / 8;
        text.replace(place, length, tokens.at(uchar(damages[i + 3]) % tokens.size()));
    }
    return text;
}

QString sourceOf(const char* data, int size)
{
    if (size < 3 || data[0] != '\xff')
        return QString::fromUtf8(data, size);
    const unsigned seed = uchar(data[1]) << 8 | uchar(data[2]);
    return damaged(generateDocument(seed, Flavour::Parses).text, QByteArray(data + 3, size - 3));
}

// The generated text, with the insertions taken out again.
QString withoutInsertions(QString text, const QVariantList& map)
{
    for (int i = 0; i < map.size(); ++i)
        text.remove(map.at(i).toMap()["plast"].toInt() - 1, 130 + QString::number(i).size());
    return text;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uchar* data, size_t size)
{
    static const bool silent = (QLoggingCategory::setFilterRules("nuvex.qmldoc=false"), true);
    Q_UNUSED(silent)
    const QString source = sourceOf(reinterpret_cast<const char*>(data), int(size));
    EditingSession session([](const QString&, const QString&) { return true; });
    session.generateEditor("Item { x: 1; Text { text: \"good\" } }");
    session.begin(source);
    const QString editorText = session.generateEditor();
    const QVariantList map = EditingSession::parseAndGetMap(source);
    if (map.isEmpty()) {
        require(editorText == source || !editorText.contains("element"));
    } else {
        require(session.getMap() == map);
        checkMap(source, map);
        require(withoutInsertions(editorText, map) == source);
        require(EditingSession::parseAndGetMap(editorText).size() == map.size());
    }
    session.replace(source.size() / 3, source.size() / 2, "{");
    session.generateEditor();
    session.getMap();
    itemPrototype(source);
    return 0;
}
