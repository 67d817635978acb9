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

void CameraTest::testEndOfStream()
{
    JournalReader journal(journalPath());
    qsizetype start = 0;
    const auto startStream = [&](const char *method, const auto &...arguments) {
        start = journal.position();
        QMetaObject::invokeMethod(manager(), method, arguments...);
        journal.waitForEvent("video-started", start);
    };
    openWindow(journal);
    startStream("startVideoStream", QString(MEDIA_FOLDER "/vp8.webm"));
    QMetaObject::invokeMethod(manager(), "updateCamerasList");
    view()->close();
    QVERIFY(!manager()->property("streamRunning").toBool());
    journal.waitForEvent("video-ended", start);

    chooseAction();
    VirtualCameras cameras;
    cameras.set({"Later|device=/dev/a|video/x-raw,width=64,height=48,framerate=30/1"});
    waitFor("the camera", [] { return !manager()->property("cameras").toList().isEmpty(); });
    manager()->setProperty("cameraName", "Later");
    startStream("startCameraStream");
    stopMachine();
    QVERIFY(!manager()->property("streamRunning").toBool());
    cameras.set({});
    waitFor("the camera to go", [] { return manager()->property("cameras").toList().isEmpty(); });
}

void CameraTest::cleanupTestCase()
{
    stopMachine();
}
