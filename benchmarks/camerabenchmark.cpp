#include "camerabenchmark.h"

#include "ratio.h"

#include <plugindriver.h>
#include <virtualcameras.h>
#include <waiting.h>

#include <QDir>
#include <QElapsedTimer>
#include <QNetworkDatagram>
#include <QProcess>
#include <QQmlListReference>
#include <QQuickItem>
#include <QQuickView>
#include <QSignalSpy>
#include <QTest>
#include <QUdpSocket>

#include <malloc.h>
#include <sys/resource.h>

#include <algorithm>
#include <chrono>

using namespace Qt::StringLiterals;
using namespace PluginDriver;
using namespace std::chrono_literals;

static constexpr quint16 udpPort = 34343;
static constexpr int framesPerSecond = 30;
static constexpr auto streamingTime = 20s;

// The elements behind the source, as in the plugin's two pipelines.
static constexpr char output[]
    = "jpegenc quality=50 ! rtpjpegpay ! udpsink host=127.0.0.1 port=34343";

static QObject *manager()
{
    return contextObject("cameraEmulationManager");
}

static void call(const char *method)
{
    QMetaObject::invokeMethod(manager(), method);
}

static void startVideo(const QString &path)
{
    QMetaObject::invokeMethod(manager(), "startVideoStream", path);
}

/// The processor time of this process or of its ended children, in seconds.
static double processorTime(__rusage_who_t who)
{
    rusage usage;
    getrusage(who, &usage);
    const auto seconds = [](const timeval &time) {
        return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) / 1e6;
    };
    return seconds(usage.ru_utime) + seconds(usage.ru_stime);
}

static double processorTimeOfLaunch(const QString &source)
{
    const double before = processorTime(RUSAGE_CHILDREN);
    QProcess launch;
    launch.startCommand(u"gst-launch-1.0 -q %1 ! %2"_s.arg(source, output));
    QTest::qWait(streamingTime);
    launch.kill();
    launch.waitForFinished();
    return processorTime(RUSAGE_CHILDREN) - before;
}

static double processorTimeOfIde()
{
    const double before = processorTime(RUSAGE_SELF);
    QTest::qWait(streamingTime);
    return processorTime(RUSAGE_SELF) - before;
}

static void launch(const QString &pipeline)
{
    QProcess process;
    process.startCommand(u"gst-launch-1.0 -q "_s + pipeline);
    QVERIFY(process.waitForFinished(-1));
    QCOMPARE(process.exitCode(), 0);
}

QString CameraBenchmark::makeVideo(int frames) const
{
    const QString path = m_folder.filePath(u"%1.webm"_s.arg(frames));
    launch(u"videotestsrc pattern=ball num-buffers=%1 ! video/x-raw,format=I420,"
           "width=640,height=480,framerate=%2/1 ! vp8enc deadline=1 ! webmmux ! "
           "filesink location=%3"_s.arg(frames)
               .arg(framesPerSecond)
               .arg(path));
    return path;
}

void CameraBenchmark::initTestCase()
{
    JournalReader journal(journalPath());
    openWindow(journal);
}

void CameraBenchmark::testProcessorTime()
{
    const VirtualCameras cameras(
        {"Camera | device=camera | video/x-raw,width=640,height=480,framerate=30/1"});
    waitFor("the camera", [] { return !manager()->property("cameras").toList().isEmpty(); });
    call("updateCamerasList");
    // longer than the measurement
    const QString path = makeVideo(framesPerSecond * (static_cast<int>(streamingTime.count()) + 5));

    startVideo(path);
    const double file = processorTimeOfIde();
    call("startCameraStream");
    const double camera = processorTimeOfIde();
    call("stopCameraStream");
    const double idle = processorTimeOfIde();

    report({.what = "processor time of streaming a file",
            .measured = file - idle,
            .baseline = processorTimeOfLaunch("filesrc location=" + path + " ! decodebin"),
            .unit = "s",
            .limit = 1.1});
    report({.what = "processor time of streaming a camera",
            .measured = camera - idle,
            .baseline = processorTimeOfLaunch("virtualcamerasrc device=camera ! "
                                              "video/x-raw,width=640,height=480,framerate=30/1"),
            .unit = "s",
            .limit = 1.1});
}

void CameraBenchmark::testPreview()
{
    const VirtualCameras cameras(
        {"Camera | device=camera | video/x-raw,width=640,height=480,framerate=30/1"});
    waitFor("the camera", [] { return !manager()->property("cameras").toList().isEmpty(); });
    call("updateCamerasList");
    QObject *page = QQmlListReference(view()->rootObject(), "pagesIds").at(4);
    auto *preview = manager()->property("preview").value<QObject *>();
    page->setProperty("active", true);
    call("startCameraStream");
    waitFor("the preview", [&] { return !preview->property("picture").toString().isEmpty(); });
    preview->setProperty("shown", false);
    processorTimeOfIde(); // the IDE comes to rest after its start
    const double hidden = processorTimeOfIde();
    preview->setProperty("shown", true);
    const double shown = processorTimeOfIde();
    call("stopCameraStream");
    const double idle = processorTimeOfIde();
    page->setProperty("active", false);
    report({.what = "processor time of streaming a camera with the preview, against without",
            .measured = shown - idle,
            .baseline = hidden - idle,
            .unit = "s",
            .limit = 1.1});
}

void CameraBenchmark::testFramesReceived()
{
    static constexpr int frames = framesPerSecond * 60;
    const QString path = makeVideo(frames);
    JournalReader journal(journalPath());
    const qsizetype start = journal.position();
    QSignalSpy ended(manager(), SIGNAL(videoStreamStopped()));
    startVideo(path);
    waitFor("the file's end", [&] { return !ended.isEmpty(); }, 90s);
    call("stopVideoStream");
    journal.waitForEvent("video-ended", start);

    int received = 0;
    const QList<QJsonObject> entries = journal.entriesSince(start);
    for (const QJsonObject &entry : entries)
        received += entry.value("frames").toInt() * (entry.value("event") == "video");
    report({.what = "frames sent in a minute, per frame received",
            .measured = frames,
            .baseline = static_cast<double>(received),
            .unit = "frames",
            .limit = 1});
}

void CameraBenchmark::testGapAtRestart()
{
    static constexpr qsizetype restarts = 20;
    static constexpr double framePeriod = 1000.0 / framesPerSecond;
    static constexpr char markerBit = '\x80'; // in the second byte of a frame's last packet
    stopMachine(); // frees the port
    QUdpSocket socket;
    QVERIFY(socket.bind(QHostAddress::LocalHost, udpPort));
    QSignalSpy ended(manager(), SIGNAL(videoStreamStopped()));
    QElapsedTimer sinceFrame;
    qsizetype endsSeen = 0;
    std::vector<double> gaps;
    connect(&socket, &QUdpSocket::readyRead, &socket, [&] {
        while (socket.hasPendingDatagrams()) {
            if (!(socket.receiveDatagram().data().at(1) & markerBit))
                continue;
            const double gap = static_cast<double>(sinceFrame.nsecsElapsed()) / 1e6;
            if (ended.size() > endsSeen)
                gaps.push_back(gap);
            endsSeen = ended.size();
            sinceFrame.start();
        }
    });
    sinceFrame.start();
    startVideo(makeVideo(framesPerSecond));
    waitFor("the restarts", [&] { return std::ssize(gaps) >= restarts; }, 60s);
    call("stopVideoStream");

    report({.what = "longest gap between frames where a file begins anew",
            .measured = *std::ranges::max_element(gaps),
            .baseline = framePeriod,
            .unit = "ms",
            .limit = 2});
}

void CameraBenchmark::testDiscovery()
{
    static constexpr int structures = 100;
    VirtualCameras cameras;
    struct Cost
    {
        double milliseconds;
        double kilobytes;
    };
    const auto costOf = [&](int count) {
        QByteArray caps;
        for (int number = 0; number < structures; ++number) {
            caps += "video/x-raw,width=" + QByteArray::number(1000 + number)
                    + ",height=480,framerate={(fraction)30/1,(fraction)15/1,(fraction)5/1};";
        }
        QByteArrayList lines;
        for (int number = 0; number < count; ++number) {
            const QByteArray name = QByteArray::number(number);
            lines << name + "|device=" + name + '|' + caps;
        }
        cameras.set({});
        call("updateCamerasList");
        const size_t before = mallinfo2().uordblks;
        cameras.set(lines);
        const double time = millisecondsOf([] { call("updateCamerasList"); });
        const size_t after = mallinfo2().uordblks;
        return Cost(time, static_cast<double>(after - before) / 1024);
    };
    static_cast<void>(costOf(100)); // fills all caches
    const Cost half = costOf(50);
    const Cost whole = costOf(100);
    cameras.set({});
    call("updateCamerasList");
    report({.what = "discovery of 100 cameras, against twice that of 50",
            .measured = whole.milliseconds,
            .baseline = 2 * half.milliseconds,
            .unit = "ms",
            .limit = 1.3});
    report({.what = "memory for 100 cameras, against twice that for 50",
            .measured = whole.kilobytes,
            .baseline = 2 * half.kilobytes,
            .unit = "kB",
            .limit = 1.2});
}

void CameraBenchmark::testEndurance()
{
    static constexpr int rounds = 250; // each changes the cameras and the stream four times
    const QByteArray first = "A | device=a | video/x-raw,width=64,height=48,framerate=30/1; "
                             "video/x-raw,width=32,height=16,framerate=30/1";
    const QByteArray second = "B | device=b | video/x-raw,width=64,height=48,framerate=30/1";
    const QString path = makeVideo(framesPerSecond);
    VirtualCameras cameras;
    const auto change = [&] {
        for (const QByteArrayList &plugged :
             {QByteArrayList{second}, {}, {first}, {first, second}}) {
            call("startCameraStream");
            cameras.set(plugged);
            waitFor("the cameras", [&] {
                return manager()->property("cameras").toList().size() == plugged.size();
            });
            startVideo(path);
        }
        call("updateCamerasList");
        call("startCameraStream");
        manager()->setProperty("resolutionIndex", 1);
        call("setCameraStreamSettings");
    };
    const auto entryCount = [](const QString &folder) {
        return QDir(folder).entryList(QDir::AllEntries | QDir::System).size();
    };
    struct Usage
    {
        double kilobytes;
        double threadsAndFiles;
    };
    const auto usage = [&] {
        startVideo({});
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        return Usage(
            static_cast<double>(mallinfo2().uordblks) / 1024,
            static_cast<double>(entryCount("/proc/self/task") + entryCount("/proc/self/fd")));
    };

    JournalReader journal(journalPath());
    for (int round = 0; round < rounds / 10; ++round)
        change();
    const Usage before = usage();
    for (int round = 0; round < rounds; ++round)
        change();
    const qsizetype last = journal.position();
    journal.waitForEvent("video", last);
    QCOMPARE(journal.entriesSince(last).constLast().value("width").toInt(), 32);
    QVERIFY(manager()->property("streamRunning").toBool());
    const Usage after = usage();
    report({.what = "heap after a thousand changes of cameras and streams",
            .measured = after.kilobytes,
            .baseline = before.kilobytes,
            .unit = "kB",
            .limit = 1.02});
    report({.what = "what the process has open after them",
            .measured = after.threadsAndFiles,
            .baseline = before.threadsAndFiles,
            .unit = "threads and files",
            .limit = 1.05});
}

void CameraBenchmark::cleanupTestCase()
{
    stopMachine();
}
