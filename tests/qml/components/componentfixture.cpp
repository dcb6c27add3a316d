// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "componentfixture.h"

#include "cloud/deployment.h"
#include "quick/video/chromakey.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QProcess>
#include <QQmlContext>

#include <algorithm>
#include <ctime>

namespace {

const QString library = QStringLiteral(":/Nuvex/Components/");

// The fixture that takes down warnings, and the handler of the test framework, which goes on reporting them.
ComponentFixture* recorder = nullptr;
QtMessageHandler nextHandler = nullptr;

void record(QtMsgType type, const QMessageLogContext& context, const QString& text)
{
    // Documents' own warnings name the document as their file; a machine without sound card has others.
    const QByteArray file(context.file);
    const bool isOurs = QByteArray(context.category).startsWith("nuvex") || file.startsWith("qrc:") ||
                        file.startsWith("file:");
    const bool isWarning = type == QtWarningMsg || type == QtCriticalMsg;
    if (recorder && isWarning && (isOurs || recorder->recordsAll()))
        recorder->addWarning(text);
    nextHandler(type, context, text);
}

QByteArray resource(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

ComponentFixture::ComponentFixture()
{
    qputenv("XDG_DATA_HOME", QFile::encodeName(m_home.path()));
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(m_home.path()));
    m_capi = std::make_unique<CAPI>(nullptr, nullptr);
    m_capi->createProject(QStringLiteral("Test"));
    m_capi->setBaseFolder(QStringLiteral("Test"));
    loadProgramFonts();
}

ComponentFixture::~ComponentFixture()
{
    recorder = nullptr;
}

void ComponentFixture::recordWarnings(bool all)
{
    m_recordsAll = all;
    recorder = this;
    m_warnings.clear();
    // The framework installs its handler anew for each document.
    const QtMessageHandler previous = qInstallMessageHandler(record);
    if (previous != record)
        nextHandler = previous;
}

void ComponentFixture::publish(QQmlEngine& engine)
{
    prepareEngine(engine, {});
    m_context = std::make_unique<QmlContext>(engine, *m_capi, QSize(1280, 720), 96);
    engine.rootContext()->setContextProperty(QStringLiteral("fixture"), this);
}

QStringList ComponentFixture::components() const
{
    const QStringList files = QDir(library).entryList({QStringLiteral("*.qml")}, QDir::Files, QDir::Name);
    QStringList result;
    for (const QString& file : files) {
        if (!file.endsWith(QLatin1String("Editor.qml")))
            result.append(file);
    }
    return result;
}

QString ComponentFixture::source(const QString& fileName) const
{
    return QString::fromUtf8(resource(library + fileName));
}

QUrl ComponentFixture::url(const QString& name) const
{
    return QUrl::fromLocalFile(m_capi->resolvedPath(name));
}

void ComponentFixture::makePicture(const QString& name, const QColor& color, int width, int height) const
{
    QImage picture(width, height, QImage::Format_RGB32);
    picture.fill(color);
    if (!picture.save(m_capi->resolvedPath(name)))
        qFatal("cannot write %s", qPrintable(name));
}

void ComponentFixture::makeCutPicture(const QString& name) const
{
    makePicture(name, Qt::blue, 600, 600);
    QFile file(m_capi->resolvedPath(name));
    file.resize(file.size() / 2);
}

void ComponentFixture::makeEnormousPicture(const QString& name) const
{
    QImage picture(16000, 9000, QImage::Format_Indexed8);
    picture.setColorTable({QColor(Qt::green).rgb()});
    picture.fill(0);
    picture.save(m_capi->resolvedPath(name));
}

void ComponentFixture::makeClip(const QString& name, const QString& color, double seconds,
                                const QString& size) const
{
    const QString input =
        QStringLiteral("color=c=%1:size=%2:rate=25:duration=%3").arg(color, size).arg(seconds);
    QStringList arguments{"-v", "error", "-y", "-f", "lavfi", "-i", input};
    if (name.endsWith(QLatin1String(".mp4")))
        arguments += {"-c:v", "libx264", "-preset", "ultrafast", "-pix_fmt", "yuv420p"};
    if (QProcess::execute(QStringLiteral("ffmpeg"), arguments += m_capi->resolvedPath(name)) != 0)
        qFatal("cannot make %s", qPrintable(name));
}

void ComponentFixture::makeGarbage(const QString& name) const
{
    m_capi->writeToFile(QStringLiteral("not what the name says"), name);
}

QVariantMap ComponentFixture::keyed(const QVariantMap& pixel, const QColor& light,
                                    const QVariantMap& key) const
{
    const auto number = [](const QVariantMap& map, const char* name) { return map[name].toFloat(); };
    const Pixel result =
        keyPixel({number(pixel, "r"), number(pixel, "g"), number(pixel, "b"), 1},
                 {number(key, "th"), number(key, "a2"), number(key, "amt"), number(key, "plus"),
                  float(light.redF()), float(light.greenF()), float(light.blueF())});
    const auto bounded = [](float channel) { return std::clamp(channel, 0.0F, 1.0F); };
    return {{"r", bounded(result.r)},
            {"g", bounded(result.g)},
            {"b", bounded(result.b)},
            {"a", bounded(result.a)}};
}

void ComponentFixture::setTimeZone(const QString& name)
{
    qputenv("TZ", name.toLatin1());
    tzset();
}

QStringList ComponentFixture::takeWarnings()
{
    QStringList result;
    result.swap(m_warnings);
    return result;
}
