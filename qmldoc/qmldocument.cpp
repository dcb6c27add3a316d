// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "qmldoc/qmldocument.h"

#include "qmldoc/editortext.h"
#include "qmldoc/getpropertiesvisitor.h"
#include "qmldoc/limits.h"
#include "qmldoc/logging.h"
#include "qmldoc/mainvisitor.h"

#include <private/qqmljsast_p.h>
#include <private/qqmljsengine_p.h>
#include <private/qqmljslexer_p.h>
#include <private/qqmljsparser_p.h>

using namespace QQmlJS;

namespace {

const QString noSource;
constexpr QChar byteOrderMark(QChar::ByteOrderMark);

// `source` as the lexer, which knows no byte-order mark, takes it. Positions stay.
QString withoutByteOrderMark(const QString& source)
{
    return source.startsWith(byteOrderMark) ? QLatin1Char(' ') + source.midRef(1) : source;
}

// The syntax tree of `source`, owned by `engine`; null with a line in the log when there is none.
AST::UiProgram* parsed(const QString& source, Engine& engine)
{
    if (source.size() > limits::maxSourceLength) {
        qCWarning(lcQmlDoc) << "a document of" << source.size() << "characters is too long";
        return nullptr;
    }
    Lexer lexer(&engine);
    lexer.setCode(withoutByteOrderMark(source), 1, true);
    Parser parser(&engine);
    if (parser.parse())
        return parser.ast();
    qCInfo(lcQmlDoc, "not a QML document: %d:%d: %s", parser.errorLineNumber(), parser.errorColumnNumber(),
           qUtf8Printable(parser.errorMessage()));
    return nullptr;
}

std::vector<int> closingBraces(const std::vector<AST::UiObjectDefinition*>& objects)
{
    std::vector<int> positions;
    positions.reserve(objects.size());
    for (const AST::UiObjectDefinition* object : objects)
        positions.push_back(int(object->initializer->rbraceToken.begin()));
    return positions;
}

} // namespace

QmlDocument::QmlDocument()
    : m_source(&noSource)
{
}

QmlDocument::~QmlDocument() = default;

bool QmlDocument::parse(const QString& source, int firstElement)
{
    m_generatedText = source;
    m_source = &source;
    auto engine = std::make_unique<Engine>();
    AST::UiProgram* program = parsed(source, *engine);
    if (!program)
        return false;
    MainVisitor visitor;
    AST::Node::accept(program, &visitor);
    if (visitor.isTooDeep()) {
        qCWarning(lcQmlDoc) << "the objects of a document are nested too deep";
        return false;
    }
    m_engine = std::move(engine);
    m_objects = visitor.objects();
    m_generatedText = editorText(source, closingBraces(m_objects), firstElement);
    return true;
}

QVariantList QmlDocument::itemMap()
{
    QVariantList map;
    map.reserve(objectCount());
    for (int i = 0; i < objectCount(); ++i)
        map.append(record(i));
    return map;
}

QVariantMap QmlDocument::record(int i)
{
    static const QVariantMap empty{{QStringLiteral("pfirst"), 0},
                                   {QStringLiteral("pfirstL"), 0},
                                   {QStringLiteral("plast"), 0},
                                   {QStringLiteral("properties"), QVariantMap()},
                                   {QStringLiteral("typename"), QString()}};
    const AST::UiObjectDefinition* object = m_objects.at(i);
    QVariantMap record = empty;
    auto entry = record.begin();
    *entry++ = int(object->firstSourceLocation().begin());
    *entry++ = int(object->initializer->lbraceToken.end());
    *entry++ = int(object->initializer->rbraceToken.end());
    *entry++ = propertiesOfObject(i);
    *entry = QString::fromLatin1(object->qualifiedTypeNameId->name.toLatin1().constData());
    return record;
}

QVariantMap QmlDocument::propertiesOfObject(int i)
{
    m_generatedText.clear();
    QVariantMap properties;
    GetPropertiesVisitor visitor(m_engine->code(), *m_source, properties);
    AST::Node::accept(m_objects.at(i), &visitor);
    return properties;
}
