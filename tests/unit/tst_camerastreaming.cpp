#include <camera/cameraemulationmanager.h>
#include <journalwriter.h>
#include <videoreceiver.h>
#include <virtualcameras.h>

#include <QFile>
#include <QImage>
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

static const QString media = u"" MEDIA_FOLDER "/"_s;

// The emulator's receiver gets the streams. It drops its picture after a second without frames.
class CameraStreamingTest : public QObject
{
    Q_OBJECT

    VirtualCameras m_cameras;
    NimbraEmulator::JournalWriter m_journal;
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
        manager.startVideoStream(media + u"vp8.webm"_s);
        QVERIFY(arrives(videoSize));
        manager.startCameraStream();
        QVERIFY(arrives({160, 120}));
        QCOMPARE(changed.size(), 3);

        manager.startVideoStream({}); // only ends the stream
        QVERIFY(!manager.streamRunning());
        QCOMPARE(changed.size(), 4);
        QTRY_VERIFY(m_receiver.picture().isNull());
    }

    void preview()
    {
        CameraEmulationManager manager;
        manager.setupCameraStreamPipeline();
        StreamPreview *preview = manager.preview();
        const auto shows = [preview](QSize size) {
            return QTest::qWaitFor([&] {
                const QByteArray url = preview->picture().toLatin1();
                const QByteArray jpeg = QByteArray::fromBase64(url.mid(url.indexOf(',') + 1));
                return QImage::fromData(jpeg, "JPEG").size() == size;
            });
        };
        manager.startCameraStream();
        QVERIFY(arrives({160, 120}));
        QVERIFY(preview->picture().isEmpty()); // which would cost processor time
        preview->setShown(true);
        QVERIFY(shows({160, 120}));
        manager.startVideoStream(media + u"vp8.webm"_s);
        QVERIFY(shows(videoSize));
        manager.stopStreams();
        QVERIFY(preview->picture().isEmpty());
        manager.startCameraStream();
        QVERIFY(shows({160, 120}));
        preview->setShown(false);
        const QSignalSpy changed(preview, &StreamPreview::pictureChanged);
        QTest::qWait(3 * StreamPreview::shortestInterval);
        QVERIFY(changed.isEmpty());
    }

    // A video file plays on while cameras are plugged in, plugged out or looked for.
    void videoGoesOn()
    {
        m_cameras.set({});
        CameraEmulationManager manager;
        manager.setupCameraStreamPipeline();
        manager.startVideoStream(media + u"vp8.webm"_s);
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
        QTRY_VERIFY(m_receiver.picture().isNull());
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

        manager.startVideoStream(media + u"vp8.webm"_s);
        QVERIFY(arrives(videoSize));
        manager.setCameraStreamSettings(); // switches to the camera
        QVERIFY(arrives({96, 80}));

        // The plugin calls this when the window is shown again.
        manager.setupCameraStreamPipeline();
        QCOMPARE(manager.cameraName(), u"Rear"_s);
        manager.updateCamerasList();
        QVERIFY(!manager.streamRunning());
        QTRY_VERIFY(m_receiver.picture().isNull());
        manager.startCameraStream();
        QVERIFY(arrives({160, 120}));
    }

    void devices_data()
    {
        QTest::addColumn<QByteArray>("property"); // %1 is the camera's number
        QTest::newRow("a text is not set") << "device=/dev/%1"_ba;
        QTest::newRow("an integer is not set") << "device-index=%1"_ba;
        QTest::newRow("a path is not set") << "device-path=/%1"_ba;
        QTest::newRow("the path goes before the device") << "device-path=a device=/%1"_ba;
    }

    void devices()
    {
        QFETCH(const QByteArray, property);
        const auto camera = [&](const QByteArray &number, const QByteArray &width) -> QByteArray {
            return number + '|' + QByteArray(property).replace("%1", number)
                   + "|video/x-raw,height=48,framerate=30/1,width=" + width;
        };
        // A camera without a property has another factory, which the others must not use.
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
        QTest::addColumn<QString>("file");
        QTest::addColumn<QString>("codec"); // empty for a file that is refused
        QTest::newRow("VP9 is refused") << u"vp9.mkv"_s << u"VP9 video"_s;
        QTest::newRow("a file with sound is refused") << u"with-audio.webm"_s << u"VP8 video"_s;
        QTest::newRow("a truncated file is refused") << u"truncated.webm"_s << u"VP8 video"_s;
        QTest::newRow("H.264 is accepted") << u"h264.mkv"_s << QString();
        QTest::newRow("sound alone is accepted") << u"audio.webm"_s << QString();
        QTest::newRow("an empty file is accepted") << u"empty.webm"_s << QString();
        QTest::newRow("a missing file is accepted") << u"none.webm"_s << QString();
        QTest::newRow("a named pipe blocks") << u"pipe.webm"_s << QString();
    }

    void codecs()
    {
        QFETCH(const QString, file);
        QFETCH(const QString, codec);
        ::mkfifo(QFile::encodeName(media + u"pipe.webm"_s).constData(), S_IRUSR | S_IWUSR);
        CameraEmulationManager manager;
        QSignalSpy checked(&manager, &CameraEmulationManager::videoFileCodecChecked);
        connect(&manager, &CameraEmulationManager::streamRunningChanged, this,
                [&] { QCOMPARE(checked.size(), 1); });
        manager.startVideoStream(media + file);
        QCOMPARE(checked, QList<QVariantList>({{!codec.isEmpty(), codec}}));
        QCOMPARE(manager.streamRunning(), !codec.isEmpty());
    }

    void endOfFile()
    {
        QTemporaryDir folder;
        const QString path = folder.filePath(u"50% #1 ü?.webm"_s);
        QVERIFY(QFile::copy(media + u"vp9.mkv"_s, path)); // half a second long
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
        QTRY_VERIFY(m_receiver.picture().isNull());
        QVERIFY(manager.streamRunning());

        // The file was stopped before the manager handled its end.
        manager.startVideoStream(media + u"vp9.mkv"_s);
        manager.stopVideoStream();
        Q_EMIT manager.videoStreamStopped();
        QVERIFY(!QTest::qWaitFor([&] { return !m_receiver.picture().isNull(); }, 500));
    }

    // A file whose frames cannot be sent must not block the event loop or the next stream.
    void fileWithoutPictures()
    {
        CameraEmulationManager manager;
        manager.setupCameraStreamPipeline();
        QSignalSpy stopped(&manager, &CameraEmulationManager::videoStreamStopped);
        manager.startVideoStream(media + u"vp9-444.mkv"_s);
        QVERIFY(!QTest::qWaitFor([&] { return stopped.size() > 5; }, 300)); // no busy loop
        QCOMPARE(manager.streamFramesPerSecond(), -1); // not known yet
        QTRY_COMPARE(manager.streamFramesPerSecond(), 0);
        manager.startVideoStream(media + u"vp9-444.mkv"_s);
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
        QTest::newRow("the selected camera is not applied") << u"Rear"_s;
        QTest::newRow("an empty selection is applied") << QString();
        QTest::newRow("an absent camera is applied") << u"Front"_s;
    }

    // A camera can be started although a stream was started before it was plugged in.
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
        manager.startCameraStream(); // applies the selection
        QVERIFY(arrives({48, 48}));
        manager.setResolutionIndex(0);
        manager.setCameraStreamSettings();
        QCOMPARE(refused.size(), 2);
        QVERIFY(arrives({48, 48}));
    }
};

QTEST_GUILESS_MAIN(CameraStreamingTest)

#include "tst_camerastreaming.moc"
