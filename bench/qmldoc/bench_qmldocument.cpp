// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

// Time and memory of the QML document model beside the bare front end of Qt, qmllint and qmlformat, on
// documents of 10 KB, 400 KB and 4 MB, and of what the editor's script does with it. Prints Markdown tables.

#include "qmldoc/editingsession.h"
#include "tests/qml/editor/editorscript.h"

#include <QElapsedTimer>
#include <QFile>
#include <QGuiApplication>
#include <QLibraryInfo>
#include <QProcess>
#include <QTemporaryDir>
#include <QTextStream>
#include <private/qqmljsast_p.h>
#include <private/qqmljsengine_p.h>
#include <private/qqmljslexer_p.h>
#include <private/qqmljsparser_p.h>

#include <algorithm>
#include <cmath>
#include <ctime>
#include <functional>
#include <malloc.h>
#include <memory>
#include <vector>

namespace {

constexpr int rounds = 10; // the first one is dropped
constexpr int sizes[] = {10 * 1000, 400 * 1000, 4 * 1000 * 1000};
constexpr int toolDeadline = 20000; // ms

QTextStream& out()
{
    static QTextStream stream(stdout);
    return stream;
}

QString slide(int i)
{
    return QStringLiteral(
               "    Slide {\n"
               "        id: slide%1\n"
               "        visible: schedule.now > %1 && !main.closed // the kitchen's hours\n"
               "        Image {\n"
               "            source: CAPI.resolveUrl(\"images/dish%1.jpg\")\n"
               "            anchors { fill: parent; margins: 12 }\n"
               "            fillMode: Image.PreserveAspectCrop\n"
               "            transform: Rotation { origin.x: 40; origin.y: 40; angle: slide%1.tilt }\n"
               "        }\n"
               "        Text {\n"
               "            x: 120; y: 480; width: 640\n"
               "            text: qsTr(\"Soup of the day: %2\").arg(menu.soup)\n"
               "            font.family: \"Open Sans\"\n"
               "            font.pixelSize: 48\n"
               "            color: price.low ? \"#ffcc00\" : \"white\"\n"
               "        }\n"
               "        property int tilt: %1 % 7\n"
               "        onVisibleChanged: {\n"
               "            if (visible && tilt > 0)\n"
               "                console.log(\"slide\", tilt);\n"
               "        }\n"
               "        states: [ State { name: \"big\"; PropertyChanges { target: slide%1; scale: 2 } } ]\n"
               "    }\n")
        .arg(i)
        .arg(i * 37);
}

// A document of about `bytes` characters, all of them ASCII.
QString document(int bytes)
{
    QString text =
        QStringLiteral("import QtQuick 2.15\nimport Nuvex.Components 1.0\n\nItem {\n    id: main\n");
    for (int i = 0; text.size() < bytes; ++i)
        text += slide(i);
    return text + "}\n";
}

class VisitEverything : public QQmlJS::AST::Visitor
{
public:
    void throwRecursionDepthError() override {}
};

// What Qt alone needs to get at the syntax tree.
struct BareDocument
{
    explicit BareDocument(const QString& text)
    {
        lexer.setCode(text, 1, true);
        if (!parser.parse())
            qFatal("the document does not parse");
        VisitEverything visitor;
        QQmlJS::AST::Node::accept(parser.ast(), &visitor);
    }

    QQmlJS::Engine engine;
    QQmlJS::Lexer lexer{&engine};
    QQmlJS::Parser parser{&engine};
};

bool writeNothing(const QString&, const QString&)
{
    return true;
}

// What the editor asks for after it changed the text.
struct EditedDocument
{
    explicit EditedDocument(const QString& text)
    {
        session.setSource(text);
        editorText = session.generateEditor();
        map = session.getMap();
        if (map.isEmpty())
            qFatal("the document does not parse");
    }

    EditingSession session{writeNothing};
    QString editorText;
    QVariantList map;
};

struct Contender
{
    QString name;
    std::function<std::shared_ptr<void>()> work; // its result is let go after the clock has stopped
    std::vector<double> milliseconds;

    double median() const { return milliseconds[milliseconds.size() / 2]; }
    QString range() const
    {
        return QStringLiteral("%1 (%2 to %3)")
            .arg(median(), 0, 'f', 2)
            .arg(milliseconds.front(), 0, 'f', 2)
            .arg(milliseconds.back(), 0, 'f', 2);
    }
};

double processorMilliseconds()
{
    timespec time;
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return double(time.tv_sec) * 1e3 + double(time.tv_nsec) / 1e6;
}

// Runs the contenders in turn, round by round, and leaves their sorted times.
void compare(std::vector<Contender>& contenders)
{
    for (int round = 0; round < rounds; ++round)
        for (Contender& contender : contenders) {
            free(malloc(64 * 1024)); // puts together what the one before has freed, not on this one's time
            const double begin = processorMilliseconds();
            const std::shared_ptr<void> result = contender.work();
            const double end = processorMilliseconds();
            if (round > 0)
                contender.milliseconds.push_back(end - begin);
        }
    for (Contender& contender : contenders)
        std::sort(contender.milliseconds.begin(), contender.milliseconds.end());
}

// Milliseconds on the clock that a program takes for the file; "over ..." when it is not done by the
// deadline.
QString timeOf(const QString& program, const QString& file)
{
    QElapsedTimer timer;
    timer.start();
    QProcess process;
    process.start(QLibraryInfo::location(QLibraryInfo::BinariesPath) + '/' + program, {file});
    if (!process.waitForFinished(toolDeadline)) {
        process.kill();
        process.waitForFinished();
        return QStringLiteral("over %1").arg(toolDeadline);
    }
    if (process.exitCode() != 0)
        qFatal("%s failed", qPrintable(program));
    return QString::number(timer.elapsed());
}

void compareBySize()
{
    out() << "| document | bare parse and visit | map and generation | ratio |\n|---|---|---|---|\n";
    for (const int bytes : sizes) {
        const QString text = document(bytes);
        std::vector<Contender> contenders{
            {"bare", [&] { return std::make_shared<BareDocument>(text); }, {}},
            {"nuvex", [&] { return std::make_shared<EditedDocument>(text); }, {}}};
        compare(contenders);
        out() << "| " << bytes / 1000 << " KB | " << contenders[0].range() << " | " << contenders[1].range()
              << " | " << QString::number(contenders[1].median() / contenders[0].median(), 'f', 2) << " |\n";
        out().flush();
    }
}

void tools()
{
    const QTemporaryDir folder;
    out() << "\n| document | qmllint | qmlformat |\n|---|---|---|\n";
    for (const int bytes : sizes) {
        QFile file(folder.filePath("document.qml"));
        file.open(QIODevice::WriteOnly);
        file.write(document(bytes).toUtf8());
        file.close();
        out() << "| " << bytes / 1000 << " KB | " << timeOf("qmllint", file.fileName()) << " | "
              << timeOf("qmlformat", file.fileName()) << " |\n";
        out().flush();
    }
}

// Slope of the line through the points' logarithms.
double slope(const std::vector<std::pair<double, double>>& points)
{
    double x = 0, y = 0, xx = 0, xy = 0;
    for (const auto& [size, time] : points) {
        x += std::log(size);
        y += std::log(time);
        xx += std::log(size) * std::log(size);
        xy += std::log(size) * std::log(time);
    }
    const double n = double(points.size());
    return (n * xy - x * y) / (n * xx - x * x);
}

void growth()
{
    std::vector<QString> texts;
    std::vector<Contender> contenders;
    for (const int bytes : {500 * 1000, 1000 * 1000, 2000 * 1000, 4000 * 1000})
        texts.push_back(document(bytes));
    for (const QString& text : texts)
        contenders.push_back(
            {QString::number(text.size()), [&text] { return std::make_shared<EditedDocument>(text); }, {}});
    compare(contenders);
    std::vector<std::pair<double, double>> points;
    out() << "\n| characters | map and generation, ms |\n|---|---|\n";
    for (size_t i = 0; i < texts.size(); ++i) {
        points.emplace_back(texts[i].size(), contenders[i].median());
        out() << "| " << contenders[i].name << " | " << contenders[i].range() << " |\n";
    }
    out() << "\nGrowth: log-log slope " << QString::number(slope(points), 'f', 3) << "\n";
}

QString tenThousandLines()
{
    QString text = document(400 * 1000);
    while (text.count('\n') < 10000)
        text += "// a line\n";
    return text;
}

// A session that has to copy its text before it can edit it, and one that has not.
void edits()
{
    const QString text = tenThousandLines();
    EditingSession session(writeNothing);
    session.begin(text);
    const auto replace = [&] {
        session.replace(text.size() / 2, text.size() / 2 + 3, "1234");
        return nullptr;
    };
    std::vector<Contender> contenders{
        {"first", replace, {}},
        {"next", replace, {}},
        {"generate", [&] { return session.generateEditor(), session.saveState(), nullptr; }, {}}};
    compare(contenders);
    out() << "\nOne replacement in the middle of " << text.count('\n') << " lines: " << contenders[1].range()
          << " ms; the first one after generating " << contenders[0].range() << " ms\n";
}

// The item map on its way to the script, beside the engine's own way to get as much data.
void handing()
{
    EditorScript script;
    script.open(document(4 * 1000 * 1000));
    const QString json = script.run("JSON.stringify(Ejs.map)").toString();
    std::vector<Contender> contenders{
        {"native", [&] { return std::make_shared<QVariantList>(script.api->getMap()); }, {}},
        {"script", [&] { return script.run("CAPI.getMap(); 0"), nullptr; }, {}},
        {"JSON", [&] { return script.run("JSON.parse(a); 0", {json}), nullptr; }, {}}};
    compare(contenders);
    out() << "\nItem map at 4 MB: made in " << contenders[0].range() << " ms, made and handed to script in "
          << contenders[1].range() << " ms; JSON.parse() of the same map " << contenders[2].range()
          << " ms\n";
}

// A property changed by the script, of a small item in the middle and of the root, beside a bare parse.
void scriptEdits()
{
    const QString text = tenThousandLines();
    EditorScript script;
    script.open(text);
    const int root = script.map().size() - 1;
    const int middle =
        script.run("Ejs.map.findIndex((r, i) => i > Ejs.map.length / 2 && r.typename === 'Text')").toInt();
    int value = 0;
    const auto update = [&](int element) {
        script.run("Ejs.element = a; Ejs.updateProperty('x', b)", {element, ++value});
        return nullptr;
    };
    std::vector<Contender> contenders{{"bare", [&] { return std::make_shared<BareDocument>(text); }, {}},
                                      {"middle", [&] { return update(middle); }, {}},
                                      {"root", [&] { return update(root); }, {}}};
    compare(contenders);
    out() << "\nEjs.updateProperty() in " << text.count('\n') << " lines: of an item in the middle "
          << contenders[1].range() << " ms, of the root " << contenders[2].range()
          << " ms; bare parse and visit " << contenders[0].range() << " ms\n";
}

double megabytesInUse()
{
    return double(mallinfo2().uordblks + mallinfo2().hblkhd) / 1e6;
}

void memory()
{
    const QString text = document(4 * 1000 * 1000);
    const double before = megabytesInUse();
    EditingSession session(writeNothing);
    session.setSource(text);
    const QString generated = session.generateEditor();
    const double afterGeneration = megabytesInUse();
    const QVariantList map = session.getMap();
    const double afterMap = megabytesInUse();
    const double size = text.size() / 1e6;
    out()
        << "\nMemory for each MB of source (the text itself takes 2): document with its tree and editor text "
        << QString::number((afterGeneration - before) / size, 'f', 1) << " MB, item map of " << map.size()
        << " records " << QString::number((afterMap - afterGeneration) / size, 'f', 1) << " MB\n";
}

} // namespace

int main(int argc, char* argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication app(argc, argv);
    out() << "Qt " << qVersion() << ", " << rounds - 1
          << " rounds, milliseconds of processor time: median (minimum to maximum);\n"
          << "for the tools, milliseconds on the clock of one run\n\n";
    compareBySize();
    growth();
    edits();
    memory();
    handing();
    scriptEdits();
    tools();
}
