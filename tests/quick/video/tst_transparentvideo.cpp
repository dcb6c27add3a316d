// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "clips.h"
#include "quick/video/transparentvideo.h"

#include <QDeadlineTimer>
#include <QQmlEngine>
#include <QQuickView>
#include <QTemporaryDir>
#include <QtTest>

namespace {

const QColor ground("#0000ff");

bool near(const QColor& one, const QColor& other, int tolerance = 12)
{
    return qAbs(one.red() - other.red()) <= tolerance && qAbs(one.green() - other.green()) <= tolerance &&
           qAbs(one.blue() - other.blue()) <= tolerance;
}

/// A window with a blue ground and the item, 128 x 96, in its corner.
struct Scene
{
    explicit Scene(const QByteArray& properties)
    {
        const QString document = folder.filePath("scene.qml");
        QFile file(document);
        file.open(QIODevice::WriteOnly);
        file.write("import QtQuick 2.15\nimport Nuvex.Native 1.0\nRectangle { width: 200; height: 150; "
                   "color: '#0000ff'\n"
                   "TransparentVideo { objectName: 'video'; width: 128; height: 96\n" +
                   properties + "}\n}\n");
        file.close();
        view.setSource(QUrl::fromLocalFile(document));
        view.show();
        shown = QTest::qWaitForWindowExposed(&view);
        video = view.rootObject() ? view.rootObject()->findChild<TransparentVideo*>("video") : nullptr;
    }

    QColor at(int x, int y) { return shown ? view.grabWindow().pixelColor(x, y) : QColor(); }
    bool showsFrame() { return near(at(10, 10), Qt::red); }
    bool isBlank() { return near(at(10, 10), ground); }

    QTemporaryDir folder;
    QQuickView view;
    bool shown = false;
    TransparentVideo* video = nullptr;
};

} // namespace

/// The item in a real window, playing clips with an alpha channel that ffmpeg makes.
class TestTransparentVideo : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void members();
    void paintedSize_data();
    void paintedSize();
    void showsTheGround_data();
    void showsTheGround();
    void fillModes_data();
    void fillModes();
    void endOfMedia();
    void repeats();
    void lastFrameStays();
    void names_data();
    void names();
    void unplayable_data();
    void unplayable();

private:
    QByteArray source(const QByteArray& name) const
    {
        return "source: '" + m_clips.filePath(name).toUtf8() + "';";
    }
    QTemporaryDir m_clips;
};

void TestTransparentVideo::initTestCase()
{
    qmlRegisterType<TransparentVideo>("Nuvex.Native", 1, 0, "TransparentVideo");
    const QStringList animation{"-c:v", "qtrle", "-pix_fmt", "argb"};
    QVERIFY(makeAlphaClip(m_clips.filePath("animation.mov"), animation, 100, 100));
    QVERIFY(makeAlphaClip(m_clips.filePath("short.mov"), animation, 10, 5));
    QVERIFY(makeAlphaClip(m_clips.filePath("vp9.webm"), {"-c:v", "libvpx-vp9", "-pix_fmt", "yuva420p"}, 100,
                          100));
    QVERIFY(makeAlphaClip(m_clips.filePath("prores.mov"),
                          {"-c:v", "prores_ks", "-profile:v", "4444", "-pix_fmt", "yuva444p10le"}, 100, 100));
    QFile text(m_clips.filePath("text.mov"));
    QVERIFY(text.open(QIODevice::WriteOnly));
    text.write(QByteArray(5000, 'x'));
}

void TestTransparentVideo::members()
{
    const QMetaObject& meta = TransparentVideo::staticMetaObject;
    QList<QByteArray> methods, properties;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i)
        methods.append(meta.method(i).methodSignature());
    for (int i = meta.propertyOffset(); i < meta.propertyCount(); ++i) {
        properties.append(meta.property(i).name());
        QVERIFY(meta.property(i).isWritable() && !meta.property(i).hasNotifySignal());
    }
    QCOMPARE(methods, QList<QByteArray>({"frameReady()", "mediaStatusChanged(QMediaPlayer::MediaStatus)",
                                         "play()", "stop()", "pause()"}));
    QCOMPARE(properties, QList<QByteArray>({"source", "repeat", "autoPlay", "transparentColor", "fillMode"}));
    const TransparentVideo fresh;
    QCOMPARE(fresh.transparentColor(), QColor(255, 0, 0));
    QCOMPARE(fresh.fillMode(), TransparentVideo::PreserveAspectFit);
}

void TestTransparentVideo::paintedSize_data()
{
    QTest::addColumn<QSize>("frame");
    QTest::addColumn<QSize>("item");
    QTest::addColumn<QSize>("none");
    QTest::addColumn<QSize>("fit");
    QTest::addColumn<QSize>("crop");
    QTest::newRow("wide frame") << QSize(1920, 1080) << QSize(500, 500) << QSize(1920, 1080)
                                << QSize(500, 281) << QSize(888, 500);
    QTest::newRow("tall frame") << QSize(30, 90) << QSize(60, 60) << QSize(30, 90) << QSize(20, 60)
                                << QSize(60, 180);
    QTest::newRow("same shape") << QSize(64, 48) << QSize(128, 96) << QSize(64, 48) << QSize(128, 96)
                                << QSize(128, 96);
    QTest::newRow("hair line") << QSize(1000, 1) << QSize(10, 10) << QSize(1000, 1) << QSize(10, 1)
                               << QSize(10000, 10);
    QTest::newRow("flat item") << QSize(10, 10) << QSize(10, 0) << QSize() << QSize() << QSize();
    QTest::newRow("no frame") << QSize() << QSize(10, 10) << QSize() << QSize() << QSize();
}

void TestTransparentVideo::paintedSize()
{
    QFETCH(QSize, frame);
    QFETCH(QSize, item);
    QFETCH(QSize, none);
    QTEST(TransparentVideo::paintedSize(frame, item, TransparentVideo::PreserveAspectFit), "fit");
    QTEST(TransparentVideo::paintedSize(frame, item, TransparentVideo::PreserveAspectCrop), "crop");
    QCOMPARE(TransparentVideo::paintedSize(frame, item, TransparentVideo::None), none);
    QCOMPARE(TransparentVideo::paintedSize(frame, item, TransparentVideo::Stretch),
             none.isValid() ? item : none);
}

void TestTransparentVideo::showsTheGround_data()
{
    QTest::addColumn<QByteArray>("clip");
    QTest::newRow("QuickTime Animation") << QByteArray("animation.mov");
    QTest::newRow("VP9") << QByteArray("vp9.webm");
    QTest::newRow("ProRes 4444") << QByteArray("prores.mov");
}

void TestTransparentVideo::showsTheGround()
{
    QFETCH(QByteArray, clip);
    Scene scene(source(clip) + "autoPlay: true");
    QTRY_VERIFY(scene.showsFrame());
    const QImage window = scene.view.grabWindow();
    QVERIFY(near(window.pixelColor(100, 10), ground));
    QVERIFY(near(window.pixelColor(10, 85), QColor(128, 0, 127)));
    QVERIFY(near(window.pixelColor(150, 120), ground));
}

/// A clip of 64 x 48 in an item of 128 x 40: where its red begins to end tells its size.
void TestTransparentVideo::fillModes_data()
{
    QTest::addColumn<QByteArray>("mode");
    QTest::addColumn<QPoint>("lastRed");
    QTest::newRow("None") << QByteArray("None") << QPoint(31, 31);
    QTest::newRow("Stretch") << QByteArray("Stretch") << QPoint(63, 25);
    QTest::newRow("PreserveAspectFit") << QByteArray("PreserveAspectFit") << QPoint(25, 25);
    QTest::newRow("PreserveAspectCrop") << QByteArray("PreserveAspectCrop") << QPoint(63, 39);
}

void TestTransparentVideo::fillModes()
{
    QFETCH(QByteArray, mode);
    QFETCH(QPoint, lastRed);
    Scene scene(source("animation.mov") +
                "autoPlay: true; Component.onCompleted: { height = 40; fillMode = TransparentVideo." + mode +
                " }");
    QTRY_VERIFY(scene.showsFrame());
    const QImage window = scene.view.grabWindow();
    QVERIFY(near(window.pixelColor(lastRed), Qt::red));
    QVERIFY(!near(window.pixelColor(lastRed + QPoint(2, 0)), Qt::red));
    QVERIFY(!near(window.pixelColor(lastRed + QPoint(0, 2)), Qt::red));
}

void TestTransparentVideo::endOfMedia()
{
    Scene scene(source("short.mov") + "repeat: false");
    scene.video->play();
    QTRY_VERIFY(scene.showsFrame());
    QTRY_VERIFY(scene.isBlank());
    scene.video->play();
    QTRY_VERIFY(scene.showsFrame());
}

/// Red comes again after green, three times, with no gap in between.
void TestTransparentVideo::repeats()
{
    Scene scene(source("short.mov") + "repeat: true; autoPlay: true");
    QTRY_VERIFY(scene.showsFrame());
    int turns = 0;
    bool green = false;
    for (const QDeadlineTimer deadline(10000); turns < 3 && !deadline.hasExpired();) {
        QCoreApplication::processEvents();
        const QColor color = scene.at(10, 10);
        QVERIFY(!near(color, ground));
        if (green && near(color, Qt::red))
            ++turns;
        green = near(color, Qt::green);
    }
    QCOMPARE(turns, 3);
}

void TestTransparentVideo::lastFrameStays()
{
    Scene scene(source("animation.mov") + "autoPlay: true");
    QTRY_VERIFY(scene.showsFrame());
    scene.video->pause();
    QVERIFY(scene.showsFrame());
    scene.video->stop();
    QCoreApplication::processEvents();
    QVERIFY(scene.showsFrame());
}

void TestTransparentVideo::names_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("plain name") << "animation.mov";
    QTest::newRow("file URL") << QUrl::fromLocalFile(m_clips.filePath("animation.mov")).toString();
}

void TestTransparentVideo::names()
{
    QFETCH(QString, name);
    QStringList asked;
    TransparentVideo::setPathResolver([&](const QString& given) {
        asked.append(given);
        return given.startsWith("file:") ? QUrl(given).toLocalFile() : m_clips.filePath(given);
    });
    Scene scene("source: '" + name.toUtf8() + "'");
    TransparentVideo::setPathResolver({});
    QCOMPARE(asked, QStringList(name));
    QCOMPARE(scene.video->source(), name);
    scene.video->play();
    QTRY_VERIFY(scene.showsFrame());
}

void TestTransparentVideo::unplayable_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::newRow("missing") << QByteArray("none.mov");
    QTest::newRow("no video") << QByteArray("text.mov");
    QTest::newRow("folder") << QByteArray("");
}

void TestTransparentVideo::unplayable()
{
    QFETCH(QByteArray, name);
    Scene scene(source(name) + "autoPlay: true");
    QVERIFY(scene.isBlank());
    scene.video->setSource(m_clips.filePath("animation.mov")); // the item still works
    scene.video->play();
    QTRY_VERIFY(scene.showsFrame());
}

QTEST_MAIN(TestTransparentVideo)
#include "tst_transparentvideo.moc"
