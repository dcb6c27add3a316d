// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

// Throughput of the QML highlighter on real QML documents, beside KSyntaxHighlighting where it was found at
// build time. Usage: bench_qmlhighlighter [FOLDER], by default the QML modules of the installed Qt.

#include "quick/highlighter/qmlhighlighter.h"
#include "quick/highlighter/qmltokenizer.h"

#include <QDirIterator>
#include <QElapsedTimer>
#include <QGuiApplication>
#include <QLibraryInfo>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextStream>

#ifdef KSYNTAX_VERSION
#include <KSyntaxHighlighting/AbstractHighlighter>
#include <KSyntaxHighlighting/Definition>
#include <KSyntaxHighlighting/Repository>
#include <KSyntaxHighlighting/State>
#include <KSyntaxHighlighting/SyntaxHighlighter>
#include <KSyntaxHighlighting/Theme>
#endif

#include <algorithm>
#include <cmath>
#include <functional>
#include <vector>

namespace {

constexpr int rounds = 7; // the first one is dropped

QTextStream& out()
{
    static QTextStream stream(stdout);
    return stream;
}

QString readDocuments(const QString& folder, int atMost)
{
    QString text;
    QStringList paths;
    for (QDirIterator files(folder, {"*.qml"}, QDir::Files, QDirIterator::Subdirectories); files.hasNext();)
        paths.append(files.next());
    paths.sort();
    for (const QString& path : qAsConst(paths)) {
        QFile file(path);
        if (text.size() < atMost && file.open(QIODevice::ReadOnly))
            text += QString::fromUtf8(file.readAll());
    }
    return text;
}

double seconds(const std::function<void()>& work)
{
    QElapsedTimer timer;
    timer.start();
    work();
    return double(timer.nsecsElapsed()) / 1e9;
}

struct Contender
{
    QString name;
    std::function<void()> work;
    std::vector<double> times;

    double median() const { return times[times.size() / 2]; }
};

/// Runs the contenders in turn, round by round, and leaves their sorted times.
void compare(std::vector<Contender>& contenders)
{
    for (int round = 0; round < rounds; ++round)
        for (Contender& contender : contenders) {
            const double time = seconds(contender.work);
            if (round > 0)
                contender.times.push_back(time);
        }
    for (Contender& contender : contenders)
        std::sort(contender.times.begin(), contender.times.end());
}

void report(const QString& title, const std::vector<Contender>& contenders, double megabytes)
{
    out() << "\n" << title << " (" << QString::number(megabytes, 'f', 2) << " MB)\n";
    for (const Contender& contender : contenders)
        out() << QString("  %1 %2 MB/s (%3 to %4), %5 times the first\n")
                     .arg(contender.name, -36)
                     .arg(megabytes / contender.median(), 8, 'f', 2)
                     .arg(megabytes / contender.times.back(), 0, 'f', 2)
                     .arg(megabytes / contender.times.front(), 0, 'f', 2)
                     .arg(contenders.front().median() / contender.median(), 0, 'f', 2);
    out().flush();
}

void tokenizeAll(const QStringList& lines)
{
    LineTokens tokens;
    tokens.state = -1;
    for (const QString& line : lines)
        tokenizeQmlLine(line, tokens.state, tokens);
}

#ifdef KSYNTAX_VERSION
/// The bare engine, without a document.
class KSyntaxEngine : public KSyntaxHighlighting::AbstractHighlighter
{
public:
    explicit KSyntaxEngine(KSyntaxHighlighting::Repository& repository)
    {
        setDefinition(repository.definitionForName("QML"));
    }

    void highlightAll(const QStringList& lines)
    {
        KSyntaxHighlighting::State state;
        for (const QString& line : lines)
            state = highlightLine(line, state);
    }

protected:
    void applyFormat(int, int, const KSyntaxHighlighting::Format&) override {}
};
#endif

void benchEngines(const QString& text, double megabytes)
{
    const QStringList lines = text.split('\n');
    std::vector<Contender> contenders{{"Nuvex tokenizer", [&] { tokenizeAll(lines); }, {}}};
#ifdef KSYNTAX_VERSION
    KSyntaxHighlighting::Repository repository;
    KSyntaxEngine engine(repository);
    contenders.insert(contenders.begin(),
                      {"KSyntaxHighlighting " KSYNTAX_VERSION, [&] { engine.highlightAll(lines); }, {}});
#endif
    compare(contenders);
    report("Engine alone", contenders, megabytes);
}

void benchDocuments(const QString& text, double megabytes)
{
    QTextDocument document(text);
    QMLHighlighter highlighter(&document);
    std::vector<Contender> contenders{{"Nuvex in a text document", [&] { highlighter.rehighlight(); }, {}}};
#ifdef KSYNTAX_VERSION
    KSyntaxHighlighting::Repository repository;
    QTextDocument peerDocument(text);
    KSyntaxHighlighting::SyntaxHighlighter peer(&peerDocument);
    peer.setTheme(repository.defaultTheme());
    peer.setDefinition(repository.definitionForName("QML"));
    contenders.insert(contenders.begin(),
                      {"KSyntaxHighlighting, same document", [&] { peer.rehighlight(); }, {}});
#endif
    compare(contenders);
    report("Whole text document coloured anew", contenders, megabytes);
}

double typingMedian(QTextDocument& document)
{
    document.documentLayout();
    QCoreApplication::processEvents();
    QTextCursor cursor(document.findBlockByNumber(document.blockCount() / 2));
    std::vector<double> times;
    for (int i = 0; i < 201; ++i)
        times.push_back(seconds([&] { cursor.insertText("x"); }));
    std::sort(times.begin(), times.end());
    return times[times.size() / 2];
}

/// Types in the middle of a document of 10 000 lines, without and with the highlighter.
void benchTyping(const QString& text)
{
    const QString lines = text.section('\n', 0, 9999);
    QTextDocument plain(lines), colored(lines);
    QMLHighlighter highlighter(&colored);
    const double without = typingMedian(plain);
    const double with = typingMedian(colored);
    out() << QString("\nOne character typed in %1 lines: %2 ms, without a highlighter %3 ms\n")
                 .arg(colored.blockCount())
                 .arg(with * 1e3, 0, 'f', 3)
                 .arg(without * 1e3, 0, 'f', 3);
    QTextDocument bare(lines); // has no layout to renew
    QMLHighlighter bareHighlighter(&bare);
    const QTextBlock block = bare.findBlockByNumber(bare.blockCount() / 2);
    const double milliseconds = seconds([&] {
        for (int i = 0; i < 1000; ++i)
            bareHighlighter.rehighlightBlock(block);
    });
    out() << QString("One of its lines coloured anew, without layout: %1 ms\n").arg(milliseconds, 0, 'f', 4);
}

/// Growth of time with length, for many lines and for one long line.
void benchGrowth(const QString& title, const std::function<QStringList(int)>& linesOfSize)
{
    constexpr int smallest = 250000;
    std::vector<double> medians;
    for (int factor : {1, 2, 4, 8}) {
        const QStringList lines = linesOfSize(smallest * factor);
        std::vector<Contender> one{{title, [&] { tokenizeAll(lines); }, {}}};
        compare(one);
        medians.push_back(one.front().median());
    }
    out() << QString("Log-log slope, %1: %2\n")
                 .arg(title)
                 .arg(std::log(medians.back() / medians.front()) / std::log(8.0), 0, 'f', 2);
}

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication app(argc, argv);
    const QString folder =
        argc > 1 ? QString::fromLocal8Bit(argv[1]) : QLibraryInfo::location(QLibraryInfo::Qml2ImportsPath);
    const QString text = readDocuments(folder, 1000000);
    if (text.isEmpty()) {
        qWarning("No QML documents in %s", qPrintable(folder));
        return 1;
    }
    const double megabytes = double(text.toUtf8().size()) / 1e6;
    out() << "Qt " << qVersion() << ", documents of " << folder << "\n";
    benchEngines(text, megabytes);
    benchDocuments(text, megabytes);
    benchTyping(text);
    benchGrowth("many lines",
                [&](int size) { return text.repeated(size / text.size() + 1).left(size).split('\n'); });
    benchGrowth("one line", [&](int size) { return QStringList(QString("a/b{\"c\" ").repeated(size / 8)); });
    return 0;
}
