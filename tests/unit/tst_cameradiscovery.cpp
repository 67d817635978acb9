#include <camera/cameradiscovery.h>
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

static const QByteArray raw = "video/x-raw";
static const QByteArray vga = raw + ",width=640,height=480";
static const QByteArray hd = raw + ",width=1280,height=720";

static const struct
{
    const char *fault;
    QByteArray caps;
    QString resolutions; // for example "640x480@30/1,15/1 320x240@"
} capabilityRows[] = {
    {"sizes sorted as text", vga + ",framerate=30/1;" + raw + ",width=1920,height=1080;" + hd,
     u"1920x1080@ 1280x720@ 640x480@30/1"_s},
    {"formats of one size merged",
     vga + ",format=YUY2,framerate={(fraction)30/1,(fraction)15/1};"
         + "image/jpeg,width=640,height=480,framerate=60/1",
     u"640x480@30/1,15/1"_s},
    {"a single rate truncated", vga + ",framerate=30000/1001", u"640x480@30000/1001"_s},
    {"a list of rates not truncated",
     vga + ",framerate={(fraction)15/2,(fraction)30000/1001,(fraction)59/2}",
     u"640x480@29/1,29/1,7/1"_s},
    {"a range of rates not read", vga + ",framerate=[1/1,30/1]",
     u"640x480@30/1,25/1,20/1,15/1,10/1,5/1,2/1,1/1"_s},
    {"the ends of a range lost", vga + ",framerate=[7/1,12/1]", u"640x480@15/1,10/1,8/1,7/1"_s},
    {"a list of ranges not skipped", vga + ",framerate={(fraction)[1/1,15/1],(fraction)30/1};" + hd,
     u"1280x720@"_s},
    {"a range of sizes not skipped", raw + ",width=[1,2147483647],height=[1,9];" + vga,
     u"640x480@"_s},
    {"a list of sizes not skipped", raw + ",width={320,640},height=480;" + vga, u"640x480@"_s},
    {"a size without width or height", raw + ",width=640;" + raw + ",height=480;" + raw, {}},
    {"a size that is not positive",
     raw + ",width=0,height=480;" + raw + ",width=640,height=-480",
     {}},
    {"a text taken for a number",
     vga + ",framerate=(string)fast;" + raw + ",width=(string)64x,height=48", u"640x480@fast"_s},
};

static QString summaryOf(const QVariantList &resolutions)
{
    QStringList texts;
    for (const QVariant &resolution : resolutions) {
        const QVariantMap map = resolution.toMap();
        const QString framerates = map[u"framerates"_s].toStringList().join(u',');
        texts << map[u"string"_s].toString() + u'@' + framerates;
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
    void capabilities_data()
    {
        QTest::addColumn<QByteArray>("caps");
        QTest::addColumn<QString>("resolutions");
        for (const auto &row : capabilityRows)
            QTest::newRow(row.fault) << row.caps << row.resolutions;
    }

    void capabilities()
    {
        // would change if it were formatted, shown as markup, or read in another encoding
        static const QByteArray name = "%1 <b>Ü</b> \"😀\" \\n & 'x'; {}";
        QFETCH(const QByteArray, caps);
        m_cameras.set({"0 | factory=none | " + raw, name + "| device=a |" + caps});
        CameraDiscovery discovery;
        discovery.readCameras();
        QCOMPARE(discovery.cameras().keys(), QStringList({QString::fromUtf8(name), u"0"_s}));
        QTEST(summaryOf(discovery.cameras().first().resolutions), "resolutions");
    }

    // Fractions that real cameras hardly have neither crash nor hide the others.
    void oddFramerates()
    {
        QCOMPARE(normalizeFractions(u"5/0,x/2,-7/2,30/1,25,1/2/3,,9/x"_s).join(u' '),
                 u"5/1 0/1 -3/1 30/1 25 1/2/3 9/1"_s);
        QCOMPARE(parseGstFramerate(u"[ 1/0, nonsense ]"_s, LIMIT::Low), 0);
        QCOMPARE(parseGstFramerate(u"[ 1/0, nonsense ]"_s, LIMIT::High), 0);
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
        m_cameras.set({front, "Front | device=/dev/b |" + hd, rear, "X | |" + raw});
        QTRY_VERIFY(manager.cameras().contains(u"X"));
        QCOMPARE(summaryOf(manager.resolutions()), u"640x480@30/1,15/1 320x240@15/1"_s);
        m_cameras.set({rear});
        manager.updateCamerasList(); // before the monitor notices the change
        QCOMPARE(manager.cameras(), QStringList(u"Rear"_s));
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
