#include <devicemodel/smartphone3dmodelconfig.h>

#include <QDir>
#include <QSignalSpy>
#include <QTest>
#include <QUrl>

using namespace EmulationManagement::Internal;
using namespace Qt::StringLiterals;

/// The file of a URL, relative to the program's folder.
static QString fileOf(const QString &uri)
{
    const QString path = QDir::cleanPath(QUrl(uri, QUrl::StrictMode).toLocalFile());
    return QDir(QCoreApplication::applicationDirPath()).relativeFilePath(path);
}

class Smartphone3DModelConfigTest : public QObject
{
    Q_OBJECT

    void write(const char *name, const QByteArray &content)
    {
        QVERIFY(m_folder.mkpath(u"."_s));
        QFile file(m_folder.filePath(QString::fromLatin1(name)));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(content);
    }

    QDir m_folder{QCoreApplication::applicationDirPath() + u"/configs"_s};

private Q_SLOTS:
    // The files must be found beside the program, not in the current folder.
    void initTestCase() { QVERIFY(QDir::setCurrent(QDir::tempPath())); }
    void cleanup() { QVERIFY(m_folder.removeRecursively()); }

    void selection_data()
    {
        QTest::addColumn<QString>("device");
        QTest::addColumn<QString>("mesh");
        QTest::addColumn<QString>("texture");
        const QString anyMesh = u"meshes/any.obj"_s, anyTexture = u"textures/any.png"_s;
        QTest::newRow("own files are ignored")
            << u"Phone X"_s << u"meshes/phone.obj"_s << u"textures/x.png"_s;
        QTest::newRow("case is ignored") << u"phone x"_s << anyMesh << anyTexture;
        QTest::newRow("another suffix is read") << u"Backup"_s << anyMesh << anyTexture;
        QTest::newRow("missing keys give no folders") << u"Bare"_s << u"meshes"_s << u"textures"_s;
        QTest::newRow("file without a name is lost")
            << QString() << u"meshes/n.obj"_s << u"textures"_s;
        QTest::newRow("broken lines hide others")
            << u"Broken"_s << u"meshes/b.obj"_s << u"textures"_s;
        QTest::newRow("escaped characters are lost")
            << u"Odd"_s << u"meshes/a b#1%20?.obj"_s << u"textures/\u00e4.png"_s;
    }

    void selection()
    {
        QFETCH(const QString, device);
        write("default.ini", "device-name=default\nmesh=any.obj\ntexture=any.png\n");
        write("1.ini", "device-name=Phone X\nmesh=phone.obj\ntexture=x.png\n");
        write("2.ini", "device-name=Bare\n");
        write("3.ini", "mesh=n.obj\n");
        write("4.ini", "device-name=Odd\nmesh=\"a b#1%20?.obj\"\ntexture=\"\\xe4.png\"\n");
        write("6.ini", "\xff[[=\n\1\ndevice-name=Broken\nmesh=b.obj\n=\ntexture");
        QVERIFY(m_folder.mkpath(u"folder.ini"_s));
        QVERIFY(QFile::link(u"nowhere"_s, m_folder.filePath(u"link.ini"_s)));
        write("5.ini.bak", "device-name=Backup\nmesh=old.obj\n");
        Smartphone3DModelConfig config;
        QCOMPARE(fileOf(config.smartphone3DModelMeshUri()), u"meshes/any.obj"_s);
        QSignalSpy changed(&config, &Smartphone3DModelConfig::smartphone3DModelConfigChanged);
        config.updateSmartphone3DModel(device);
        QTEST(fileOf(config.smartphone3DModelMeshUri()), "mesh");
        QTEST(fileOf(config.smartphone3DModelTextureUri()), "texture");
        QCOMPARE(changed.size(), 1); // also when nothing changes
    }

    void noFilesAtAll()
    {
        const Smartphone3DModelConfig config;
        QCOMPARE(fileOf(config.smartphone3DModelMeshUri()), u"meshes"_s);
        QCOMPARE(fileOf(config.smartphone3DModelTextureUri()), u"textures"_s);
        QVERIFY(config.smartphone3DModelConfigured());
    }
};

QTEST_GUILESS_MAIN(Smartphone3DModelConfigTest)

#include "tst_smartphone3dmodelconfig.moc"
