#include "cameratest.h"

#include <plugindriver.h>
#include <virtualcameras.h>
#include <waiting.h>

#include <QTest>

using namespace PluginDriver;

static QObject *manager()
{
    return contextObject("cameraEmulationManager");
}

void CameraTest::testPlugging()
{
    VirtualCameras cameras;
    cameras.set({"Camera | device=/dev/a | video/x-raw,width=64,height=48,framerate=30/1"});
    waitFor("the camera", [] { return !manager()->property("cameras").toList().isEmpty(); });
    cameras.set({});
    waitFor("the camera to go", [] { return manager()->property("cameras").toList().isEmpty(); });
}

void CameraTest::testEndOfStream()
{
    Journal journal(dataFolder(emulator()) + "/journal.jsonl");
    const auto startVideo = [&] {
        const qsizetype start = journal.position();
        QMetaObject::invokeMethod(manager(), "startVideoStream", QString(MEDIA_FOLDER "/vp8.webm"));
        journal.waitForEvent("video-started", start);
        return start;
    };
    openWindow(journal);
    const qsizetype start = startVideo();
    view()->close();
    QVERIFY(!manager()->property("streamRunning").toBool());
    journal.waitForEvent("video-ended", start);

    chooseAction();
    startVideo();
    stopMachine();
    QVERIFY(!manager()->property("streamRunning").toBool());
}

void CameraTest::cleanupTestCase()
{
    stopMachine();
}
