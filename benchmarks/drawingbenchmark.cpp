#include "drawingbenchmark.h"

#include "ratio.h"

#include <hostsdk.h>
#include <plugindriver.h>
#include <waiting.h>

#include <QAbstractEventDispatcher>
#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QQuickItem>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <algorithm>
#include <cmath>
#include <numbers>

using namespace PluginDriver;
using namespace std::chrono_literals;

static double milliseconds(const QElapsedTimer &timer)
{
    return static_cast<double>(timer.nsecsElapsed()) / 1e6;
}

/// Measures for how long the event loop has had work.
class BusyTime : public QObject
{
public:
    BusyTime()
    {
        m_sinceStart.start();
        const auto *loop = QAbstractEventDispatcher::instance();
        connect(loop, &QAbstractEventDispatcher::aboutToBlock, this, [this] { m_idle.start(); });
        connect(loop, &QAbstractEventDispatcher::awake, this, [this] {
            if (m_idle.isValid())
                m_idleTime += milliseconds(m_idle);
            m_idle.invalidate();
        });
    }

    [[nodiscard]] double total() const { return milliseconds(m_sinceStart) - m_idleTime; }

private:
    QElapsedTimer m_sinceStart;
    QElapsedTimer m_idle;
    double m_idleTime = 0;
};

/// Kilobytes.
static double residentMemory()
{
    QFile status("/proc/self/status");
    if (!status.open(QIODevice::ReadOnly))
        qFatal("The memory cannot be measured");
    const QByteArray text = status.readAll();
    return text.mid(text.indexOf("VmRSS")).simplified().split(' ').at(1).toDouble();
}

/// Waits until a frame is shown after the device has been read.
static void waitForDevice(const QObject *reader)
{
    QSignalSpy finished(reader, SIGNAL(finished()));
    if (!finished.wait(1min))
        qFatal("The device was not read");
    QSignalSpy frames(view(), &QQuickWindow::frameSwapped);
    if (!frames.wait())
        qFatal("The device was not drawn");
}

void DrawingBenchmark::testFirstShowing()
{
    static constexpr double allowance = 400; // ms
    JournalReader journal(journalPath());
    openWindow(journal);
    m_page = std::make_unique<DevicePageDriver>(WindowDriver(view()));
    const BusyTime busy;
    m_page->show();
    waitFor("the scene", [] { return deviceModelReader() != nullptr; });
    waitForDevice(deviceModelReader());
    report({.what = "busy event loop until the device is drawn, against what it may take",
            .measured = busy.total(),
            .baseline = allowance,
            .unit = "ms",
            .limit = 1});
}

void DrawingBenchmark::testFramesAtRest()
{
    static constexpr auto duration = 5s;
    QTest::qWait(2s);
    QSignalSpy frames(view(), &QQuickWindow::frameSwapped);
    QTest::qWait(duration);
    report({.what = "frames in 5 s while nothing changes, against one a second",
            .measured = static_cast<double>(frames.size()),
            .baseline = duration.count(),
            .unit = "frames",
            .limit = 0});
}

void DrawingBenchmark::testMemory()
{
    static constexpr int changes = 100;
    static const QStringList models{"Nimbra Phone", "Nimbra Lite", "Nimbra Tablet"};
    const auto change = [&](int times) {
        for (int i = 0; i < times; ++i) {
            sdk()->setDeviceModel(0, models[(i + 1) % models.size()]);
            waitForDevice(deviceModelReader());
        }
        return residentMemory();
    };
    const double before = change(changes / 2); // caches fill up first
    report({.what = "memory after 100 changes of the device model against before",
            .measured = change(changes),
            .baseline = before,
            .unit = "KB",
            .limit = 1.05});
}

/// A tube of small faces, as many as a mesh may have.
static QByteArray largeMesh()
{
    static constexpr int around = 240;
    static constexpr int along = 240;
    QByteArrayList vertices;
    QByteArrayList faces;
    for (int i = 0; i < along; ++i) {
        for (int j = 0; j < around; ++j) {
            const double angle = 2 * std::numbers::pi * j / around;
            vertices << QByteArray::number(std::cos(angle)) << QByteArray::number(std::sin(angle))
                     << QByteArray::number(2. * i / along);
            const int next = (j + 1) % around;
            for (const int number : {1, i * around + j, i * around + next, (i + 1) * around + next,
                                     (i + 1) * around + j}) {
                if (i + 1 < along)
                    faces << QByteArray::number(number);
            }
        }
    }
    return R"({"vertices": [)" + vertices.join(',') + R"(], "faces": [)" + faces.join(',') + "]}";
}

void DrawingBenchmark::testLargeMesh()
{
    static constexpr double allowance = 100; // ms
    const QTemporaryDir folder;
    QFile mesh(folder.filePath("large.json"));
    if (!mesh.open(QIODevice::WriteOnly) || mesh.write(largeMesh()) < 0)
        qFatal("The mesh cannot be written");
    mesh.close();

    QElapsedTimer sinceLast;
    double longest = 0;
    QTimer ticks;
    connect(&ticks, &QTimer::timeout, this, [&] {
        longest = std::max(longest, milliseconds(sinceLast));
        sinceLast.start();
    });
    sinceLast.start();
    ticks.start(0ms);
    m_page->read(mesh.fileName(), QCoreApplication::applicationDirPath() + "/textures/default.png");
    waitForDevice(deviceModelReader());
    report({.what = "longest block of the event loop by a mesh of the largest size",
            .measured = longest,
            .baseline = allowance,
            .unit = "ms",
            .limit = 1});
    stopMachine();
}
