#include "drawingtest.h"

#include <hostsdk.h>
#include <plugindriver.h>
#include <waiting.h>

#include <QCoreApplication>
#include <QFile>
#include <QQuickItem>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>
#include <cstdlib>

using namespace PluginDriver;

static const QList<double> upright{0, 0, 0};

static bool isSimilar(const QColor &left, const QColor &right)
{
    static constexpr int tolerance = 40;
    return std::abs(left.red() - right.red()) < tolerance
           && std::abs(left.green() - right.green()) < tolerance
           && std::abs(left.blue() - right.blue()) < tolerance;
}

static bool isLoaded(const QByteArray &library)
{
    QFile maps("/proc/self/maps");
    return maps.open(QIODevice::ReadOnly) && maps.readAll().contains(library);
}

void DrawingTest::initTestCase()
{
    JournalReader journal(journalPath());
    openWindow(journal);
    QVERIFY(!isLoaded("Quick3D")); // the start of the IDE must not pay for it
    m_page = std::make_unique<DevicePageDriver>(WindowDriver(view()));
    m_page->show();
    waitFor("the device to be drawn", [] { return deviceModelReader() != nullptr; });
    QVERIFY(isLoaded("Quick3D"));
}

void DrawingTest::cleanupTestCase()
{
    stopMachine();
}

void DrawingTest::init()
{
    QTest::failOnWarning(QRegularExpression(".*"));
    m_page->turn(upright);
}

void DrawingTest::waitForColor(QPointF point, const QColor &color)
{
    waitFor("the colour " + color.name(),
            [&] { return isSimilar(m_page->colorAt(point.x(), point.y()), color); });
}

// Each row has two points of the area where the picture shows the sun or the dock of the screen,
// the lens, a button or the case.
void DrawingTest::testSides_data()
{
    QTest::addColumn<QList<double>>("rotation");
    QTest::addColumn<QList<QPointF>>("points");
    QTest::addColumn<QStringList>("colors");
    const auto add
        = [](const char *side, const QList<double> &rotation, const QList<QPointF> &points,
             const QStringList &colors) { QTest::newRow(side) << rotation << points << colors; };
    const QList<double> back{0, 180, 0};
    const QList<double> left{0, 90, 0};
    const QList<double> top{-90, 0, 180};
    const QList<double> faceUp{-90, 0, 0};
    const QList<double> faceDown{90, 0, 0};
    add("Nimbra Phone: front", upright, {{.59, .34}, {.4, .75}}, {"#eacd79", "#4ea96c"});
    add("Nimbra Phone: back", back, {{.38, .21}, {.5, .6}}, {"#2c2d2e", "#3b4350"});
    add("Nimbra Phone: left", left, {{.502, .34}, {.5, .7}}, {"#9499a2", "#3a424f"});
    add("Nimbra Phone: top", top, {{.39, .51}, {.5, .585}}, {"#ffe8aa", "#4e5664"});
    add("Nimbra Phone: face up", faceUp, {{.575, .449}, {.5, .6}}, {"#ffeaae", "#3b4350"});
    add("Nimbra Phone: face down", faceDown, {{.45, .49}, {.5, .6}}, {"#868990", "#424957"});
    add("Nimbra Lite: front", upright, {{.575, .378}, {.392, .667}}, {"#ece2ca", "#d26060"});
    add("Nimbra Lite: back", back, {{.498, .239}, {.5, .6}}, {"#29292a", "#964047"});
    add("Nimbra Lite: face up", faceUp, {{.585, .445}, {.5, .6}}, {"#fffce8", "#964047"});
    add("Nimbra Lite: face down", faceDown, {{.45, .47}, {.5, .6}}, {"#b78b8f", "#bb5a62"});
    add("Nimbra Tablet: front", upright, {{.62, .346}, {.388, .724}}, {"#eacd79", "#4ea96c"});
    add("Nimbra Tablet: back", back, {{.29, .221}, {.5, .6}}, {"#2e2e2f", "#81878f"});
    add("Nimbra Tablet: face up", faceUp, {{.605, .458}, {.55, .583}}, {"#ffeaae", "#82888f"});
    add("Nimbra Tablet: face down", faceDown, {{.45, .49}, {.5, .58}}, {"#a8acb2", "#9aa0a9"});
}

void DrawingTest::testSides()
{
    QFETCH(const QList<double>, rotation);
    QFETCH(const QList<QPointF>, points);
    QFETCH(const QStringList, colors);
    sdk()->setDeviceModel(0, QString::fromLatin1(QTest::currentDataTag()).section(':', 0, 0));
    m_page->turn(rotation);
    for (qsizetype i = 0; i < points.size(); ++i)
        waitForColor(points[i], QColor(colors[i]));
}

void DrawingTest::testBadFiles_data()
{
    QTest::addColumn<QString>("mesh");
    QTest::addColumn<QString>("texture");
    QTest::addColumn<QString>("reason");
    const QString good = "meshes/nimbra-lite.json";
    const QString picture = "textures/default.png";
    QTest::newRow("missing") << "meshes/none.json" << picture << "\"none.json\" cannot be read";
    QTest::newRow("no mesh") << picture << picture << "\"default.png\" contains no mesh";
    QTest::newRow("enormous") << "" << picture << "\"large.json\" is too large to draw";
    QTest::newRow("no image") << good << good << "\"nimbra-lite.json\" contains no image";
}

// A file of no use gives a box and a sentence. The next device model is drawn again.
void DrawingTest::testBadFiles()
{
    QFETCH(const QString, mesh);
    QFETCH(const QString, texture);
    QFETCH(const QString, reason);
    const QString folder = QCoreApplication::applicationDirPath() + '/';
    const QTemporaryDir temporary;
    QFile large(temporary.filePath("large.json"));
    QVERIFY(large.open(QIODevice::WriteOnly) && large.resize(50 << 20));
    m_page->read(mesh.isEmpty() ? large.fileName() : folder + mesh, folder + texture);
    const QString sentence = "The device is drawn as a box, because the file " + reason + '.';
    const auto *label = WindowDriver(view()).item("QQuickLabel", "text", sentence);
    waitForColor({0.5, 0.5}, QColor("#99a2ac"));
    sdk()->setDeviceModel(0, "Nimbra Tablet");
    sdk()->setDeviceModel(0, "Nimbra Phone");
    waitFor("the sentence to go", [&] { return !label->isVisible(); });
    waitForColor({0.4, 0.75}, QColor("#4ea96c"));
}

// The hint goes when the user has turned the device.
void DrawingTest::testHint()
{
    const QList<QQuickItem *> labels = WindowDriver(view()).items("QQuickLabel", m_page->area());
    const auto hint = std::ranges::find_if(labels, [](const QQuickItem *label) {
        return label->property("text").toString().startsWith("Drag to turn");
    });
    QVERIFY(hint != labels.end());
    m_page->drag({{0.55, 0.6}, {0.75, 0.6}, {0.95, 0.6}});
    waitFor("the hint to fade", [&] { return (*hint)->opacity() == 0; });
}
