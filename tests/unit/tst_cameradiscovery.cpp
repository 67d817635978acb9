#include <camera/cameraemulationmanager.h>
#include <camera/framerates.h>

#include <virtualcameras.h>

#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

static const QByteArray front = "Front | device=/dev/front | video/x-raw,width=640,height=480,"
                                "framerate={(fraction)30/1,(fraction)15/1};"
                                "video/x-raw,width=320,height=240,framerate=15/1";
static const QByteArray rear
    = "Rear | device=/dev/rear | video/x-raw,width=1280,height=720,framerate=10/1";

#define RAW "video/x-raw"
#define VGA RAW ",width=640,height=480"
#define HD RAW ",width=1280,height=720"

static constexpr struct
{
    const char *name;
    const char *caps;
    const char *resolutions; // "640x480@30/1,15/1 320x240@"
} cameras[] = {
    {"widest first, as numbers", VGA ",framerate=30/1;" RAW ",width=1920,height=1080;" HD,
     "1920x1080@ 1280x720@ 640x480@30/1"},
    {"the first format of a size wins",
     VGA ",format=YUY2,framerate={(fraction)30/1,(fraction)15/1};"
         "image/jpeg,width=640,height=480,framerate=60/1",
     "640x480@30/1,15/1"},
    {"a single rate is not truncated", VGA ",framerate=30000/1001", "640x480@30000/1001"},
    {"those of a list are", VGA ",framerate={(fraction)15/2,(fraction)30000/1001,(fraction)59/2}",
     "640x480@29/1,29/1,7/1"},
    {"range of rates", VGA ",framerate=[1/1,30/1]", "640x480@30/1,25/1,20/1,15/1,10/1,5/1,2/1,1/1"},
    {"range from between the steps", VGA ",framerate=[7/1,12/1]", "640x480@15/1,10/1,8/1,7/1"},
    {"list of ranges of rates", VGA ",framerate={(fraction)[1/1,15/1],(fraction)30/1};" HD,
     "1280x720@"},
    {"ranges and lists of sizes",
     RAW ",width=[1,2147483647],height=[1,9];" RAW ",width={320,640},height=480;" VGA, "640x480@"},
    {"a missing field", RAW ",width=640;" RAW ",height=480;" RAW, ""},
    {"no positive size", RAW ",width=0,height=480;" RAW ",width=640,height=-480", ""},
    {"texts for numbers", VGA ",framerate=(string)fast;" RAW ",width=(string)64x,height=48",
     "640x480@fast"},
    {"%1 <b>Ü</b> \"😀\" \\n & 'x'; {}", VGA, "640x480@"},
};

static QString summaryOf(const QVariantList &resolutions)
{
    QStringList texts;
    for (const QVariant &resolution : resolutions) {
        const QVariantMap map = resolution.toMap();
        texts << map.value(u"string"_s).toString() + u'@'
                     + map.value(u"framerates"_s).toStringList().join(u',');
    }
    return texts.join(u' ');
}

static QString selectionOf(const CameraEmulationManager &manager)
{
    return manager.cameraName() + u' ' + QString::number(manager.width()) + u'x'
           + QString::number(manager.height()) + u'@' + manager.framerate();
}

class CameraDiscoveryTest : public QObject
{
    Q_OBJECT

    VirtualCameras m_cameras;

private Q_SLOTS:
    void capabilities()
    {
        QByteArrayList lines{"0 | factory=none | " RAW};
        for (const auto &camera : cameras)
            lines << QByteArray(camera.name) + "|device=" + camera.name[0] + '|' + camera.caps;
        m_cameras.set(lines);
        CameraEmulationManager manager;
        manager.setupCameraStreamPipeline();
        for (const auto &camera : cameras) {
            manager.setCameraName(QString::fromUtf8(camera.name));
            QCOMPARE(summaryOf(manager.resolutions()), QString::fromUtf8(camera.resolutions));
        }
    }

    // Odd fractions, which real cameras hardly have.
    void oddFramerates()
    {
        QCOMPARE(::normalizeFractions(u"5/0,x/2,-7/2,30/1,25,1/2/3,,9/x"_s).join(u' '),
                 u"5/1 0/1 -3/1 30/1 25 1/2/3 9/1");
        QStringList framerates;
        initAvailableFramerates(&framerates, u"[ 1/0, nonsense ]"_s);
        QCOMPARE(framerates, QStringList(u"0/1"_s));
    }

    void plugging()
    {
        m_cameras.set({});
        CameraEmulationManager manager;
        manager.setupCameraStreamPipeline();
        QCOMPARE(selectionOf(manager), u" -1x-1@"_s);
        m_cameras.set({rear, front});
        QTRY_COMPARE(manager.cameras(), QStringList({u"Front"_s, u"Rear"_s}));
        manager.updateCamerasList();
        QCOMPARE(selectionOf(manager), u"Front 640x480@30/1"_s);

        // a second camera with the name of the first
        m_cameras.set({front, "Front | device=/dev/b |" HD, rear, "X | |" RAW});
        QTRY_VERIFY(manager.cameras().contains(u"X"));
        QCOMPARE(summaryOf(manager.resolutions()), u"640x480@30/1,15/1 320x240@15/1"_s);
    }

    void unplugging()
    {
        m_cameras.set({front, rear});
        CameraEmulationManager manager;
        manager.setupCameraStreamPipeline();
        manager.startCameraStream();
        m_cameras.set({front});
        QTRY_COMPARE(manager.cameras(), QStringList(u"Front"_s));
        QVERIFY(manager.streamRunning());
        m_cameras.set({front, rear});
        QTRY_COMPARE(manager.cameras().size(), 2);
        m_cameras.set({rear});
        QTRY_COMPARE(manager.cameras(), QStringList(u"Rear"_s));
        QCOMPARE(selectionOf(manager), u"Rear 1280x720@10/1"_s);
        QVERIFY(!manager.streamRunning());
        m_cameras.set({});
        QTRY_COMPARE(manager.cameras(), QStringList());
        QCOMPARE(selectionOf(manager), u"Rear 1280x720@10/1"_s);
    }

    void selecting()
    {
        m_cameras.set({front, rear});
        CameraEmulationManager manager;
        manager.setupCameraStreamPipeline();
        QSignalSpy framerateChanged(&manager, &CameraEmulationManager::framerateChanged);
        manager.setFramerate(u"15/1"_s);
        manager.setResolutionIndex(1);
        manager.setResolutionIndex(0);
        QCOMPARE(selectionOf(manager), u"Front 640x480@15/1"_s); // kept: this size offers it
        QCOMPARE(framerateChanged.size(), 3); // also emitted without a change
        for (const int index : {-1, 2, 1000}) {
            manager.setResolutionIndex(index);
            QCOMPARE(selectionOf(manager), u"Front 640x480@15/1"_s);
            QCOMPARE(manager.framerates(), QStringList());
        }
        manager.setFramerate(u"30"_s);
        QCOMPARE(manager.framerate(), QString());
    }
};

QTEST_GUILESS_MAIN(CameraDiscoveryTest)

#include "tst_cameradiscovery.moc"
