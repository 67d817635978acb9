#include <camera/cameraemulationmanager.h>
#include <journal.h>
#include <videoreceiver.h>
#include <virtualcameras.h>

#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <sys/stat.h>

using namespace Qt::StringLiterals;

static const QByteArray front = "Front | device=/dev/front | video/x-raw,width=160,height=120,"
                                "framerate={(fraction)30/1,(fraction)15/1};"
                                "video/x-raw,width=64,height=48,framerate=30/1";
static const QByteArray rear
    = "Rear | device=/dev/rear | video/x-raw,width=96,height=80,framerate=30/1";

static constexpr QSize videoSize(320, 240); // vp8.webm and vp9.webm

static QString media(const QString &name)
{
    return u"" MEDIA_FOLDER "/"_s + name;
}

// The emulator's receiver, on the host's end of the forwarded port, shows what is streamed.
class CameraStreamingTest : public QObject
{
    Q_OBJECT

    VirtualCameras m_cameras;
    NimbraEmulator::Journal m_journal;
    NimbraEmulator::VideoReceiver m_receiver{m_journal};

    // Skips the frames that were on their way when the stream changed.
    bool arrives(QSize size)
    {
        const auto isThere = [&] { return m_receiver.picture().size() == size; };
        const auto more = [&, count = m_receiver.frameCount()] {
            return m_receiver.frameCount() > count + 3 && isThere();
        };
        return QTest::qWaitFor(isThere) && QTest::qWaitFor(more);
    }

    // The receiver reports the end after a second without pictures.
    bool ends()
    {
        return QTest::qWaitFor([&] { return m_receiver.picture().isNull(); });
    }

private Q_SLOTS:
    void initTestCase()
    {
        QString error;
        QVERIFY2(m_receiver.listen(QHostAddress::LocalHost, &error), qPrintable(error));
    }

    void init() { m_cameras.set({front, rear}); }

    void switching()
    {
        CameraEmulationManager manager;
        manager.setupCameraStreamPipeline();
        QSignalSpy changed(&manager, &CameraEmulationManager::streamRunningChanged);
        manager.startCameraStream();
        QVERIFY(arrives({160, 120}));
        manager.startVideoStream(media(u"vp8.webm"_s));
        QVERIFY(arrives(videoSize));
        manager.startCameraStream();
        QVERIFY(arrives({160, 120}));
        QCOMPARE(changed.size(), 3);

        manager.startVideoStream({}); // only ends the stream
        QVERIFY(!manager.streamRunning());
        QCOMPARE(changed.size(), 4);
        QVERIFY(ends());
    }

    // Cameras that come, go or are looked for switch none on while a video file plays.
    void videoGoesOn()
    {
        m_cameras.set({});
        CameraEmulationManager manager;
        manager.setupCameraStreamPipeline();
        manager.startVideoStream(media(u"vp8.webm"_s));
        const auto goesOn = [&] { return manager.streamRunning() && arrives(videoSize); };
        m_cameras.set({front});
        QTRY_COMPARE(manager.cameras().size(), 1);
        QVERIFY(goesOn());
        m_cameras.set({front, rear});
        QTRY_COMPARE(manager.cameras().size(), 2);
        manager.updateCamerasList();
        QVERIFY(goesOn());
        m_cameras.set({rear});
        QTRY_COMPARE(manager.cameraName(), u"Rear"_s); // the selected one was unplugged
        QVERIFY(goesOn());
        manager.setupCameraStreamPipeline();
        QVERIFY(goesOn());
        manager.stopCameraStream();
        QVERIFY(goesOn());
        manager.stopStreams();
        QVERIFY(!manager.streamRunning());
        QVERIFY(ends());
    }

    void settings()
    {
        CameraEmulationManager manager;
        manager.setupCameraStreamPipeline();
        manager.startCameraStream();
        QVERIFY(arrives({160, 120}));
        manager.setResolutionIndex(1);
        QVERIFY(arrives({160, 120}));
        manager.setCameraStreamSettings();
        QVERIFY(arrives({64, 48}));
        manager.setCameraName(u"Rear"_s);
        manager.setCameraStreamSettings();
        QVERIFY(arrives({96, 80}));

        manager.startVideoStream(media(u"vp8.webm"_s));
        QVERIFY(arrives(videoSize));
        manager.setCameraStreamSettings(); // switches to the camera
        QVERIFY(arrives({96, 80}));

        // as when the window is shown again
        manager.setupCameraStreamPipeline();
        QCOMPARE(manager.cameraName(), u"Rear"_s);
        manager.updateCamerasList();
        QVERIFY(!manager.streamRunning());
        QVERIFY(ends());
        manager.startCameraStream();
        QVERIFY(arrives({160, 120}));
    }

    void devices_data()
    {
        QTest::addColumn<QByteArray>("property");
        for (const QByteArray &property : {"device=/dev/%1"_ba, "device-index=%1"_ba,
                                           "device-path=/%1"_ba, "device-path=a device=/%1"_ba})
            QTest::newRow(property.constData()) << property; // %1 is the camera's number
    }

    void devices()
    {
        QFETCH(const QByteArray, property);
        const auto camera = [&](const QByteArray &number, const QByteArray &width) -> QByteArray {
            return number + '|' + QByteArray(property).replace("%1", number)
                   + "|video/x-raw,height=48,framerate=30/1,width=" + width;
        };
        // the first one's source has no property, and so another factory
        m_cameras.set({"0||video/x-raw,width=96,height=48", camera("1", "64"), camera("2", "80")});
        CameraEmulationManager manager;
        manager.setupCameraStreamPipeline();
        manager.setCameraName(u"2"_s);
        manager.setCameraStreamSettings();
        manager.startCameraStream();
        QVERIFY(arrives({80, 48}));
    }

    void codecs_data()
    {
        QTest::addColumn<QString>("codec"); // of an accepted file
        QTest::newRow("vp9.mkv") << u"VP9 video"_s;
        QTest::newRow("with-audio.webm") << u"VP8 video"_s;
        QTest::newRow("truncated.webm") << u"VP8 video"_s;
        for (const char *name : {"h264.mkv", "audio.webm", "empty.webm", "none.webm", "pipe.webm"})
            QTest::newRow(name) << QString();
    }

    void codecs()
    {
        QFETCH(const QString, codec);
        // opening the pipe would block this thread
        ::mkfifo(QFile::encodeName(media(u"pipe.webm"_s)).constData(), S_IRUSR | S_IWUSR);
        CameraEmulationManager manager;
        QSignalSpy checked(&manager, &CameraEmulationManager::videoFileCodecChecked);
        connect(&manager, &CameraEmulationManager::streamRunningChanged, this,
                [&] { QCOMPARE(checked.size(), 1); });
        manager.startVideoStream(media(QString::fromLatin1(QTest::currentDataTag())));
        QCOMPARE(checked, QList<QVariantList>({{!codec.isEmpty(), codec}}));
        QCOMPARE(manager.streamRunning(), !codec.isEmpty());
    }

    void endOfFile()
    {
        QTemporaryDir folder;
        const QString path = folder.filePath(u"50% #1 ü?.webm"_s);
        QVERIFY(QFile::copy(media(u"vp9.mkv"_s), path)); // it lasts half a second
        CameraEmulationManager manager;
        manager.setupCameraStreamPipeline();
        QSignalSpy stopped(&manager, &CameraEmulationManager::videoStreamStopped);
        QSignalSpy changed(&manager, &CameraEmulationManager::streamRunningChanged);
        manager.startVideoStream(path);
        const qint64 before = m_receiver.frameCount();
        QVERIFY(QTest::qWaitFor([&] { return stopped.size() == 3; }));
        QTRY_VERIFY(m_receiver.frameCount() - before >= 45); // three times 15
        QCOMPARE(changed.size(), 1);

        QVERIFY(QFile::remove(path));
        QVERIFY(ends());
        QVERIFY(manager.streamRunning());

        // stopped before the manager handled the file's end
        manager.startVideoStream(media(u"vp9.mkv"_s));
        manager.stopVideoStream();
        Q_EMIT manager.videoStreamStopped();
        QVERIFY(!QTest::qWaitFor([&] { return !m_receiver.picture().isNull(); }, 500));
    }

    // A file of which no frame can be sent must not block the event loop or the next stream.
    void fileWithoutPictures()
    {
        CameraEmulationManager manager;
        manager.setupCameraStreamPipeline();
        QSignalSpy stopped(&manager, &CameraEmulationManager::videoStreamStopped);
        manager.startVideoStream(media(u"vp9-444.mkv"_s));
        QVERIFY(!QTest::qWaitFor([&] { return stopped.size() > 5; }, 300)); // no busy loop
        QCOMPARE(manager.streamFramesPerSecond(), -1); // not known yet
        QTRY_COMPARE(manager.streamFramesPerSecond(), 0);
        manager.startVideoStream(media(u"vp9-444.mkv"_s));
        manager.startCameraStream();
        QVERIFY(arrives({160, 120}));
        QTRY_VERIFY(std::abs(manager.streamFramesPerSecond() - 30) <= 3);
        QCOMPARE(manager.streamSize(), QSize(160, 120));
        manager.stopStreams();
        QCOMPARE(manager.streamFramesPerSecond(), -1);
    }

    void firstCamera_data()
    {
        QTest::addColumn<QString>("selected");
        QTest::newRow("selected") << u"Rear"_s;
        QTest::newRow("not selected") << QString();
        QTest::newRow("another was selected") << u"Front"_s;
    }

    // A camera that is plugged in after a start without any can be started.
    void firstCamera()
    {
        m_cameras.set({});
        CameraEmulationManager manager;
        manager.setupCameraStreamPipeline();
        manager.startCameraStream();
        QVERIFY(manager.streamRunning());
        manager.stopStreams();
        m_cameras.set({rear});
        QTRY_COMPARE(manager.cameras().size(), 1);
        QFETCH(const QString, selected);
        manager.setCameraName(selected);
        manager.startCameraStream();
        QVERIFY(arrives({96, 80}));
    }

    void tooLarge()
    {
        m_cameras.set(
            {"Front | | video/x-raw,width=64,height=2041;video/x-raw,width=48,height=48"});
        CameraEmulationManager manager;
        QSignalSpy refused(&manager, &CameraEmulationManager::streamSizeRefused);
        manager.setupCameraStreamPipeline();
        manager.startCameraStream();
        QVERIFY(!manager.streamRunning());
        QCOMPARE(refused.size(), 1);
        manager.setResolutionIndex(1);
        manager.startCameraStream(); // there is nothing else to start
        QVERIFY(arrives({48, 48}));
        manager.setResolutionIndex(0);
        manager.setCameraStreamSettings();
        QCOMPARE(refused.size(), 2);
        QVERIFY(arrives({48, 48}));
    }
};

QTEST_GUILESS_MAIN(CameraStreamingTest)

#include "tst_camerastreaming.moc"
