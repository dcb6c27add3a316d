// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include <QDir>
#include <QFileInfo>
#include <QImage>
#include <QImageReader>
#include <QRawFont>
#include <QSet>
#include <QtTest>

/// The fonts and pictures that the build brings in under the names by which the front end and projects ask
/// for them.
class TestResources : public QObject
{
    Q_OBJECT

private slots:
    void fonts_data();
    void fonts();
    void facesAreDistinct();
    void iconFont();
    void pictures_data();
    void pictures();
    void standbyPictureFillsTheScreen();
};

namespace {

const QStringList textFonts = {"Arial-MT-Regular.ttf",
                               "Atkins-Bold.otf",
                               "Atkins-Regular.ttf",
                               "BerkshireSwash-Regular.ttf",
                               "Damion-Regular.ttf",
                               "hotpizza.ttf",
                               "Impact.ttf",
                               "lobster.ttf",
                               "Lora-Regular.ttf",
                               "Merienda-Regular.ttf",
                               "opensans-regular-webfont.ttf",
                               "OstrichSans-Heavy.otf",
                               "Roboto-Thin.ttf"};

QRawFont load(const QString& name)
{
    return QRawFont(":/Nuvex/Components/fonts/" + name, 24);
}

QDir sources()
{
    return QDir(NUVEX_TEST_DATA "/../../qml");
}

} // namespace

void TestResources::fonts_data()
{
    QTest::addColumn<QString>("name");
    for (const QString& name : textFonts)
        QTest::newRow(qPrintable(name)) << name;
}

void TestResources::fonts()
{
    QFETCH(QString, name);
    const QRawFont font = load(name);
    QVERIFY(font.isValid());
    const QString letters = QStringLiteral("AZaz09ÄÖÜßàâçéèêëîïñóôùûåæøœšžłąęčőűğı€£«»„“–…·½");
    for (const QChar letter : letters)
        QVERIFY2(font.supportsCharacter(letter), qPrintable(QString(letter)));
}

void TestResources::facesAreDistinct()
{
    QSet<QString> faces;
    for (const QString& name : textFonts)
        faces.insert(load(name).familyName() + '/' + load(name).styleName());
    QCOMPARE(faces.size(), textFonts.size());
}

void TestResources::iconFont()
{
    const QRawFont font(QString(":/Nuvex/font/fontawesome-webfont.ttf"), 24);
    QCOMPARE(font.familyName(), QString("FontAwesome"));
    QVERIFY(font.supportsCharacter(QChar(0xf000)));
    QVERIFY(font.supportsCharacter(QChar(0xf128)));
}

void TestResources::pictures_data()
{
    QTest::addColumn<QString>("picture");
    for (const QString folder : {"images", "Components/icons"}) {
        for (const QFileInfo& drawing : QDir(sources().filePath(folder)).entryInfoList({"*.svg"}))
            QTest::newRow(qPrintable(drawing.fileName()))
                << folder + '/' + drawing.completeBaseName() + ".png";
    }
}

void TestResources::pictures()
{
    QFETCH(QString, picture);
    const QImage image(":/Nuvex/" + picture);
    QVERIFY(!image.isNull());
    bool isDrawn = !image.hasAlphaChannel();
    for (int y = 0; y < image.height() && !isDrawn; ++y)
        for (int x = 0; x < image.width() && !isDrawn; ++x)
            isDrawn = qAlpha(image.pixel(x, y)) > 0;
    QVERIFY2(isDrawn, "nothing but transparent pixels");
}

void TestResources::standbyPictureFillsTheScreen()
{
    QCOMPARE(QImageReader(":/Nuvex/images/standby.png").size(), QSize(1920, 1080));
    QCOMPARE(QImageReader(":/Nuvex/images/app-icon.png").size(), QSize(256, 256));
}

QTEST_MAIN(TestResources)
#include "tst_resources.moc"
