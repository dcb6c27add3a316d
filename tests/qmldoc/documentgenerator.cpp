// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "tests/qmldoc/documentgenerator.h"

#include <random>
#include <vector>

namespace {

const QStringList gaps{" ",           "  ",     "\n",    "\r\n",  "\t", "/* } \" : */",
                       "// { ' \"\n", "/*\n*/", "/*😀*/", " /**/ "};

// Expressions over what every document has; none ends where a line break and a name could go on.
const QStringList expressions{"1",
                              "width",
                              "-x",
                              "\"}:{\"",
                              "'\\'😀'",
                              "`a${x + `${y}`}b}`",
                              "/[/\"}]+/gi",
                              "4 / 2 / 1",
                              "[1, [2], {}]",
                              "({ a: 1, 'b': [] })",
                              "(a, b) => a + b",
                              "a => { return { c: a } }",
                              "(a) =>\n a",
                              "function () { return '}' }",
                              "x ? y : z",
                              "(\n x /* ) */ )",
                              "x +\r\n\ty",
                              "(1, 2)",
                              "typeof x",
                              "!x === !y",
                              "Math.max(x, // most\n y)",
                              "new Date()",
                              "\"日本語\""};

const QStringList statements{"{ }",
                             "{ var q = 1; if (q) { q++ } }",
                             "{ // }\n }",
                             "if (x) { } else { y }",
                             "switch (x) { case 1: break; default: }",
                             "try { x() } catch (e) { } finally { }"};

const QStringList numbers{"1", "2 + 3", "(1)", "Math.max(1, 2)"};

struct Type
{
    QStringList bindable; // properties that take a number
    bool onlyBindings;
};

const Type item{{"x", "y", "width", "z", "opacity", "rotation", "anchors.topMargin"}, false};
const QMap<QString, Type> realTypes{{"anchors", {{"margins", "leftMargin"}, true}},
                                    {"Component", {{}, false}},
                                    {"NumberAnimation", {{"duration", "to"}, true}},
                                    {"Rotation", {{"angle", "origin.x"}, true}},
                                    {"State", {{}, true}}};

// Where members are written: an object, or the value of a binding of one.
struct Scope
{
    QString type;
    QVariantMap* properties; // those that bindings here belong to
    bool numbered;           // whether objects here are
    int depth;
    QStringList used;
};

class Generator
{
public:
    Generator(unsigned seed, Flavour flavour)
        : m_random(seed)
        , m_real(flavour == Flavour::Instantiates)
    {
    }

    GeneratedDocument make()
    {
        if (chance(10))
            m_text = QChar(QChar::ByteOrderMark);
        gap();
        m_text += m_real ? "import QtQuick 2.15\n" : "import QtQuick 2.15; import \"x\" as X\n";
        gap();
        object(m_real ? "Item" : any({"Item", "X.Panel", "Größe", "A.B.C"}), true, 0);
        gap();
        return {m_text, m_map, editorText()};
    }

private:
    using Member = void (Generator::*)(Scope&, bool last);

    int below(int limit) { return int(m_random() % unsigned(limit)); }
    bool chance(int percent) { return below(100) < percent; }
    QString any(const QStringList& list) { return list.at(below(list.size())); }
    QString newName(const QString& prefix) { return prefix + QString::number(m_names++); }
    int here() const { return m_text.size(); }

    void gap()
    {
        while (chance(35))
            m_text += any(gaps);
    }

    void lineBreak()
    {
        gap();
        m_text += any({"\n", "\r\n"});
        gap();
    }

    void write(const QString& text)
    {
        m_text += text;
        gap();
    }

    void words(const QStringList& words)
    {
        for (const QString& word : words)
            write(word + any(gaps));
    }

    QString anyType()
    {
        const QStringList wild{"Item",    "X.Panel", "Größe", "Component",
                               "anchors", "font",    "A.B.C", "Component.Inner"};
        return any(m_real ? QStringList{"Item", "Rectangle", "MouseArea", "Row", "Component"} : wild);
    }

    // --- objects ---

    void object(const QString& type, bool numbered, int depth)
    {
        const QString first = type.section('.', 0, 0);
        numbered = numbered && first != "Component" && first != "anchors";
        QVariantMap properties;
        const int begin = here();
        write(type);
        const int bodyBegin = here() + 1;
        body({type, &properties, numbered, depth + 1, {}});
        if (!numbered)
            return;
        m_insertAt.push_back(here() - 1);
        m_map.append(QVariantMap{{"pfirst", begin},
                                 {"pfirstL", bodyBegin},
                                 {"plast", here()},
                                 {"typename", QString::fromLatin1(first.toLatin1())},
                                 {"properties", properties}});
    }

    void body(Scope scope)
    {
        write("{");
        if (scope.type == "Component") {
            object("Item", scope.numbered, scope.depth);
        } else {
            for (int count = below(scope.depth > 3 ? 3 : 7); count > 0; --count)
                member(scope, count == 1);
        }
        m_text += "}";
    }

    void member(Scope& scope, bool last)
    {
        static const std::vector<Member> all{
            &Generator::binding,     &Generator::declaration,    &Generator::objectDeclaration,
            &Generator::signal,      &Generator::enumeration,    &Generator::function,
            &Generator::child,       &Generator::child,          &Generator::group,
            &Generator::binding,     &Generator::objectBinding,  &Generator::onBinding,
            &Generator::listBinding, &Generator::inlineComponent};
        const bool onlyBindings = m_real && realTypes.value(scope.type, item).onlyBindings;
        (this->*(onlyBindings ? &Generator::binding : all[size_t(below(int(all.size())))]))(scope, last);
        gap();
    }

    void child(Scope& scope, bool) { object(anyType(), scope.numbered, scope.depth); }

    void group(Scope& scope, bool)
    {
        if (take(scope, "anchors"))
            object(m_real ? "anchors" : any({"anchors", "font"}), scope.numbered, scope.depth);
    }

    void inlineComponent(Scope& scope, bool)
    {
        if (m_real && scope.depth > 1)
            return;
        words({"component", newName("C"), ":"});
        object(m_real ? "Item" : anyType(), scope.numbered, scope.depth + 1);
    }

    void list(Scope& scope, const QString& type)
    {
        write("[");
        object(type, scope.numbered, scope.depth);
        gap();
        while (chance(40)) {
            write(",");
            object(type, scope.numbered, scope.depth);
            gap();
        }
        m_text += "]";
    }

    // --- properties ---

    // Whether `name` may be used; the engine takes each name but once.
    bool take(Scope& scope, const QString& name)
    {
        const bool free = !m_real || !scope.used.contains(name);
        scope.used.append(name);
        return free;
    }

    void record(Scope& scope, const QString& name, int begin, int valueBegin, int end)
    {
        scope.properties->insert(name, QVariantMap{{"value", m_text.mid(valueBegin, end - valueBegin)},
                                                   {"pfirst", begin},
                                                   {"plast", end}});
    }

    // Writes a value and what ends it; returns the end of the value.
    int value(const QString& text, bool last)
    {
        m_text += text;
        int end = here();
        if (chance(40)) {
            gap();
            m_text += ';';
            end = here();
        } else if (last && chance(50)) {
            gap();
        } else {
            lineBreak();
        }
        return end;
    }

    int script(bool last)
    {
        if (chance(80))
            return value(any(expressions), last);
        m_text += any(statements);
        return here();
    }

    void dotted(const QString& name)
    {
        for (const QChar c : name)
            m_text += c == '.' ? any({".", " .", ". ", "  .  "}) : QString(c);
    }

    void binding(Scope& scope, bool last)
    {
        const QStringList real = realTypes.value(scope.type, item).bindable;
        const QStringList wild{"x", "id", "anchors.fill", "Keys.onPressed", "größe", "a.b.c"};
        if (m_real && real.isEmpty())
            return;
        const QString name = any(m_real ? real : wild);
        if (!take(scope, name))
            return;
        const int begin = here();
        dotted(name);
        write(any({":", " :", "  :"}));
        const int valueBegin = here();
        record(scope, name, begin, valueBegin, m_real ? value(any(numbers), last) : script(last));
    }

    void declaration(Scope& scope, bool last)
    {
        const QString name = m_real ? newName("p") : any({"p", "q", "r", newName("p")});
        const bool constant = chance(20);
        const int begin = here();
        if (constant)
            words({"readonly"});
        else if (!m_real && chance(20))
            words({any({"default", "required", "default required"})});
        const bool required = m_text.midRef(begin).contains(QLatin1String("required"));
        words({"property", any({"var", "var", "var /* ; */"})});
        if (required || (!constant && chance(30))) {
            const int end = value(name, last);
            record(scope, name, begin, end, end);
            return;
        }
        write(name);
        write(":");
        const int valueBegin = here();
        record(scope, name, begin, valueBegin, script(last));
    }

    void objectDeclaration(Scope& scope, bool last)
    {
        const QString name = newName("o");
        const bool isList = chance(40);
        const int begin = here();
        words({"property", isList ? "list<Item>" : "Item", name, ":"});
        const int valueBegin = here();
        if (isList) {
            list(scope, "Item");
        } else {
            QVariantMap hidden;
            write("Item");
            body({"Item", &hidden, scope.numbered, scope.depth + 1, {}});
        }
        record(scope, name, begin, valueBegin, here());
        if (isList)
            value("", last);
    }

    void signal(Scope& scope, bool last)
    {
        const QString name = newName("s");
        const int begin = here();
        words({"signal"});
        const int end = value(name + any({"", "()", "(int a)", "(var a, string b)"}), last);
        record(scope, name, begin, end, end);
    }

    void objectBinding(Scope& scope, bool)
    {
        if (!take(scope, "transform"))
            return;
        const QString type = m_real ? "Rotation" : any({"Rotation", "X.Panel", "anchors"});
        words({"transform", ":", type});
        body({type, scope.properties, scope.numbered, scope.depth + 1, {}});
    }

    void onBinding(Scope& scope, bool)
    {
        if (!take(scope, "x"))
            return;
        words({"NumberAnimation", "on", "x"});
        body({"NumberAnimation", scope.properties, scope.numbered, scope.depth + 1, {}});
    }

    void listBinding(Scope& scope, bool)
    {
        if (!take(scope, "states"))
            return;
        words({"states", ":"});
        list(scope, "State");
    }

    // --- what leaves no record ---

    void enumeration(Scope&, bool) { words({"enum", newName("E"), "{", "A", ",", "B", "=", "4", "}"}); }

    void function(Scope&, bool)
    {
        words({"function", newName("f"), "(a)", "{ var o = { x: '}' }; return `${o}` }"});
    }

    QString editorText() const
    {
        QString text = m_text;
        int shift = 0;
        int element = 0;
        for (const int position : m_insertAt) {
            const QString insertion = "\nproperty int element: " + QString::number(element++) +
                                      "\n"
                                      "    function evaluate(str) {      \n"
                                      "    eval(str);                    \n"
                                      "    }                             \n\n";
            text.insert(position + shift, insertion);
            shift += insertion.size();
        }
        return text;
    }

    std::mt19937 m_random;
    bool m_real;
    int m_names = 0;
    QString m_text;
    QVariantList m_map;
    std::vector<int> m_insertAt;
};

} // namespace

GeneratedDocument generateDocument(unsigned seed, Flavour flavour)
{
    return Generator(seed, flavour).make();
}
