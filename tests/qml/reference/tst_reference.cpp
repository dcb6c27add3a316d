// SPDX-FileCopyrightText: 2026 The Nuvex developers
// SPDX-License-Identifier: MIT

#include "offscreenview.h"
#include "pinned.h"
#include "tests/qml/components/componentfixture.h"

#include <QDir>
#include <QQmlComponent>
#include <QQuickItem>
#include <QRegularExpression>
#include <QtTest>

/// How every component looks, in three sizes on three grounds: the frames that are drawn now beside the
/// pictures that are kept. A sheet holds a fresh instance as the editor drops it; network items are also
/// shown as on a screen that never had an answer. To renew the pictures after a wanted change, run the test
/// with NUVEX_RENEW_REFERENCES=1 and look at what changed. After a failure the folder "reference-failures"
/// holds the frame and what differs.
class TestReference : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanup();
    void looks_data();
    void looks();
    void comesBackFromAbsurdValues_data();
    void comesBackFromAbsurdValues();
    void cleanupTestCase();

private:
    void fill(const QString& component, int element);
    QImage frameAfterEntering();
    void tryOut(const QMetaProperty& property);
    void compareWithReference(const QImage& frame);
    void settle();
    QObjectList items() const;

    std::unique_ptr<ComponentFixture> m_fixture;
    std::unique_ptr<QQmlEngine> m_engine;
    std::unique_ptr<QQuickItem> m_sheet;
    std::unique_ptr<OffscreenView> m_view;
    SteppedAnimations m_animations;
};

namespace {

/// Share of the pixels that may differ, and by how much a channel may without that counting.
constexpr double tolerance = 0.0002;
constexpr int channelTolerance = 28;
/// The frames after which a component has entered, and particles have spread.
constexpr int frames = 20;
constexpr int stepsToFrame = 8;

/// A picture in which a pixel stands for four, so that a difference in smoothing an edge does not count.
QImage blurred(const QImage& picture)
{
    return picture.scaled(picture.size() / 2, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

int distance(QRgb a, QRgb b)
{
    return std::max(
        {std::abs(qRed(a) - qRed(b)), std::abs(qGreen(a) - qGreen(b)), std::abs(qBlue(a) - qBlue(b))});
}

/// White where two pictures differ, black elsewhere; pictures of different sizes differ everywhere.
QImage difference(const QImage& a, const QImage& b)
{
    QImage result(b.size(), QImage::Format_Grayscale8);
    result.fill(Qt::white);
    if (a.size() != b.size())
        return result;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x)
            result.scanLine(y)[x] = distance(a.pixel(x, y), b.pixel(x, y)) > channelTolerance ? 255 : 0;
    }
    return result;
}

double shareOfWhite(const QImage& picture)
{
    int count = 0;
    for (int y = 0; y < picture.height(); ++y)
        count +=
            int(std::count(picture.constScanLine(y), picture.constScanLine(y) + picture.width(), uchar(255)));
    return double(count) / (picture.width() * picture.height());
}

/// The properties that the document of `component` itself declares, and the size.
QVector<QMetaProperty> properties(const QMetaObject* type, const QString& component)
{
    const QMetaObject* own = type;
    while (own->superClass() && !QString(own->className()).startsWith(component + "_QML"))
        own = own->superClass();
    QVector<QMetaProperty> result{type->property(type->indexOfProperty("width")),
                                  type->property(type->indexOfProperty("height"))};
    for (int i = own->propertyOffset(); i < type->propertyCount(); ++i) {
        const QMetaProperty property = type->property(i);
        if (property.isWritable() && !QStringList{"element", "cPrototype"}.contains(property.name()))
            result.append(property);
    }
    return result;
}

QVariantList absurdValues(const QVariant& usual)
{
    switch (int(usual.type())) {
    case QVariant::Int:
    case QVariant::Double:
        return {-1, 0, qQNaN(), 1e9};
    case QVariant::String:
        return {QString(),
                "\u202e<b>\"'%1 {tag}\\" + QString(20, QChar(0xfdfd)) + QString(3000, 'W') + "\n\t"};
    default:
        return {};
    }
}

void keepFailure(const QString& name, const QImage& frame, const QImage& difference)
{
    QDir().mkpath(QStringLiteral("reference-failures"));
    frame.save(QStringLiteral("reference-failures/%1.png").arg(name));
    difference.save(QStringLiteral("reference-failures/%1-difference.png").arg(name));
}

} // namespace

void TestReference::initTestCase()
{
    pinned::cutNetwork();
    qputenv("TZ", "UTC");
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedKingdom));
    m_fixture = std::make_unique<ComponentFixture>();
    m_engine = std::make_unique<QQmlEngine>();
    m_fixture->publish(*m_engine);
    QQmlComponent sheet(m_engine.get(),
                        QUrl::fromLocalFile(QStringLiteral(QUICK_TEST_SOURCE_DIR "/Sheet.qml")));
    m_sheet.reset(qobject_cast<QQuickItem*>(sheet.create()));
    QVERIFY2(m_sheet, qPrintable(sheet.errorString()));
    m_view = std::make_unique<OffscreenView>(m_sheet->size().toSize());
    m_sheet->setParentItem(m_view->root());
}

void TestReference::looks_data()
{
    QTest::addColumn<QString>("component");
    QTest::addColumn<int>("element");
    for (const QString& file : m_fixture->components())
        QTest::newRow(qPrintable(file.section('.', 0, 0))) << file << 7;
    for (const char* name : {"Flickr", "Rss", "Twitter", "Weather", "WeatherForecast"})
        QTest::addRow("%s-offline", name) << QStringLiteral("%1.qml").arg(name) << -1;
}

void TestReference::looks()
{
    QFETCH(const QString, component);
    QFETCH(const int, element);
    fill(component, element);
    compareWithReference(frameAfterEntering());
}

void TestReference::comesBackFromAbsurdValues_data()
{
    QTest::addColumn<QString>("component");
    for (const QString& file : m_fixture->components())
        QTest::newRow(qPrintable(file.section('.', 0, 0))) << file;
}

/// Every number and text of a component takes absurd values without a warning, and afterwards it looks as it
/// did.
void TestReference::comesBackFromAbsurdValues()
{
    QFETCH(const QString, component);
    fill(component, 7);
    m_fixture->recordWarnings();
    for (const QMetaProperty& property :
         properties(items().constFirst()->metaObject(), component.section('.', 0, 0)))
        tryOut(property);
    const QImage frame = frameAfterEntering();
    const QStringList warnings = m_fixture->takeWarnings().filter(QRegularExpression("^(?!no news from)"));
    QVERIFY2(warnings.isEmpty(), qPrintable(warnings.join('\n')));
    // What moves is somewhere else by now.
    if (!QRegularExpression("Carousel|Fireworks|KImage|Particles").match(component).hasMatch())
        compareWithReference(frame);
}

void TestReference::fill(const QString& file, int element)
{
    pinned::restartRandomNumbers();
    QQmlComponent component(m_engine.get());
    const QString prototype = m_fixture->capi().getItemPrototype(":/Nuvex/Components/" + file);
    component.setData("import QtQuick 2.15; import 'qrc:/Nuvex/Components'; " + prototype.toUtf8(),
                      QUrl(QStringLiteral("qrc:/Nuvex/reference.qml")));
    if (!component.isReady())
        qFatal("%s", qPrintable(component.errorString()));
    QMetaObject::invokeMethod(m_sheet.get(), "fill", Q_ARG(QVariant, QVariant::fromValue(&component)),
                              Q_ARG(QVariant, element));
    settle();
}

QImage TestReference::frameAfterEntering()
{
    for (int i = 0; i < frames; ++i) {
        for (int step = 0; step < stepsToFrame; ++step)
            m_animations.advance();
        QCoreApplication::processEvents();
        m_view->draw();
    }
    settle();
    m_view->draw();
    return m_view->frame();
}

void TestReference::tryOut(const QMetaProperty& property)
{
    const QObjectList all = items();
    QVariantList usual;
    for (QObject* item : all)
        usual.append(property.read(item));
    for (const QVariant& absurd : absurdValues(usual.constFirst())) {
        for (QObject* item : all)
            property.write(item, absurd);
        QCoreApplication::processEvents();
        m_view->draw();
        for (int i = 0; i < all.size(); ++i)
            property.write(all[i], usual[i]);
    }
}

void TestReference::compareWithReference(const QImage& frame)
{
    const QString name = QString::fromLatin1(QTest::currentDataTag());
    const QString kept = QStringLiteral(NUVEX_TEST_DATA "/reference/%1.png").arg(name);
    const QImage wanted(kept);
    const QImage where = difference(blurred(wanted), blurred(frame));
    const double share = shareOfWhite(where);
    if (share > tolerance && qEnvironmentVariableIsSet("NUVEX_RENEW_REFERENCES")) {
        QVERIFY(frame.save(kept, nullptr, 0));
        return;
    }
    if (share > tolerance)
        keepFailure(name, frame, where);
    QVERIFY2(share <= tolerance, qPrintable(QStringLiteral("%1 % differ").arg(100 * share, 0, 'f', 2)));
}

void TestReference::cleanup()
{
    QMetaObject::invokeMethod(m_sheet.get(), "clear");
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

QObjectList TestReference::items() const
{
    QVariant list;
    QMetaObject::invokeMethod(m_sheet.get(), "items", Q_RETURN_ARG(QVariant, list));
    QObjectList result;
    for (const QVariant& item : list.toList())
        result.append(item.value<QObject*>());
    return result;
}

void TestReference::settle()
{
    QVariant isSettled = false;
    QTRY_VERIFY(QMetaObject::invokeMethod(m_sheet.get(), "isSettled", Q_RETURN_ARG(QVariant, isSettled)) &&
                isSettled.toBool());
}

void TestReference::cleanupTestCase()
{
    m_sheet.reset();
    m_view.reset();
    m_engine.reset();
    m_fixture.reset();
}

int main(int argc, char** argv)
{
    QCoreApplication::setAttribute(Qt::AA_ShareOpenGLContexts);
    setApplicationNames();
    QGuiApplication application(argc, argv);
    TestReference test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_reference.moc"
