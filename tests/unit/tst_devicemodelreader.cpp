#include <devicemodel/devicemodelreader.h>

#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QUrl>

#include <algorithm>

#include <sys/stat.h>

using namespace EmulationManagement::Internal;
using namespace Qt::StringLiterals;

using Problem = DeviceModelReader::Problem;

static const QString models = QStringLiteral(DEVICE_MODELS);
static const QByteArray triangle
    = R"({"vertices": [9, 0, 0, 11, 0, 0, 10, 2, 0], "uvs": [[0, 0, 1, 0, 0, 1]],
          "colors": [65280], "faces": [%1]})";

static QByteArray withFaces(const QByteArray &faces)
{
    return QByteArray(triangle).replace("%1", faces);
}

class DeviceModelReaderTest : public QObject
{
    Q_OBJECT

    QTemporaryDir m_folder;
    DeviceModelReader m_reader;

    QString path(const QString &name) const { return m_folder.filePath(name); }

    QString file(const QString &name, const QByteArray &content) const
    {
        QFile file(path(name));
        if (!file.open(QIODevice::WriteOnly) || file.write(content) < 0)
            qFatal("The file cannot be written");
        return file.fileName();
    }

    // A picture whose header claims an enormous size.
    static QByteArray enormousPicture() { return "P6 30000 30000 255\n" + QByteArray(100, 'x'); }

    void read(const QString &mesh, const QString &texture = models + u"/textures/default.png"_s)
    {
        QSignalSpy finished(&m_reader, &DeviceModelReader::finished);
        m_reader.read(QUrl::fromLocalFile(mesh).toString(),
                      QUrl::fromLocalFile(texture).toString());
        QVERIFY(finished.wait());
    }

private Q_SLOTS:
    void shippedModels_data()
    {
        QTest::addColumn<double>("aspect"); // of the front's height to its width
        QTest::newRow("default") << 1.45 / 0.67;
        QTest::newRow("nimbra-lite") << 1.16 / 0.54;
        QTest::newRow("nimbra-tablet") << 2.35 / 1.55;
    }

    void shippedModels()
    {
        QFETCH(const double, aspect);
        const QString name = QString::fromLatin1(QTest::currentDataTag());
        read(models + u"/meshes/"_s + name + u".json"_s,
             models + u"/textures/"_s + name + u".png"_s);
        QCOMPARE(m_reader.problem(), Problem::None);
        QCOMPARE_LT(
            std::abs(double(m_reader.texture().height()) / m_reader.texture().width() - aspect),
            0.02);

        // the texture lies upright on all of the front
        const DeviceMesh front = m_reader.frontMesh();
        const auto byY
            = [](const QVector3D &left, const QVector3D &right) { return left.y() < right.y(); };
        const auto [low, high] = std::ranges::minmax_element(front.positions, byY);
        QCOMPARE_LT(front.uvs.at(low - front.positions.begin()).y(), 0.001F);
        QCOMPARE_GT(front.uvs.at(high - front.positions.begin()).y(), 0.999F);
        QVERIFY(std::ranges::all_of(
            front.normals, [](const QVector3D &normal) { return normal == QVector3D(0, 0, 1); }));

        // the case surrounds the front, all of it in a ball of radius 1, with its faces outwards
        const DeviceMesh mesh = m_reader.caseMesh();
        float farthest = 0;
        for (qsizetype i = 0; i < mesh.positions.size(); i += 3) {
            const QVector3D face = QVector3D::normal(mesh.positions.at(i), mesh.positions.at(i + 1),
                                                     mesh.positions.at(i + 2));
            QCOMPARE_GT(QVector3D::dotProduct(face, mesh.normals.at(i)), 0.F);
            farthest = std::max(farthest, mesh.positions.at(i).length());
        }
        QCOMPARE_LT(std::abs(farthest - 1), 0.001F);
        QCOMPARE(mesh.colors.size(), mesh.positions.size());
    }

    void faces()
    {
        // a textured triangle, and a plain, green one without normals
        read(file(u"faces.json"_s, withFaces("8, 0, 1, 2, 0, 1, 2, 64, 0, 1, 2, 0")));
        QCOMPARE(m_reader.problem(), Problem::None);
        QCOMPARE(m_reader.frontMesh().positions.first(), QVector3D(-1, -1, 0) / std::sqrt(2.F));
        QCOMPARE(m_reader.frontMesh().uvs.at(1), QVector2D(1, 0));
        QCOMPARE(m_reader.caseMesh().normals.first(), QVector3D(0, 0, 1));
        QCOMPARE(m_reader.caseMesh().colors.first(), QVector4D(0, 1, 0, 1));
    }

    // A device whose file is named so has its texture on the other file's faces only.
    void separateFront()
    {
        const QByteArray both = withFaces("8, 0, 1, 2, 0, 1, 2, 0, 0, 1, 2");
        const QString mesh = file(u"my-default.json"_s, both);
        read(mesh);
        QCOMPARE(m_reader.problemFile(), u"default_front.json"_s);
        file(u"default_front.json"_s, both);
        read(mesh);
        QCOMPARE(m_reader.problem(), Problem::None);
        QCOMPARE(m_reader.frontMesh().positions.size(), 3);
        QCOMPARE(m_reader.caseMesh().positions.size(), 9);
    }

    void badFiles_data()
    {
        QTest::addColumn<QByteArray>("mesh");
        QTest::addColumn<QByteArray>("texture");
        QTest::addColumn<Problem>("problem");
        const auto badMesh
            = [](const char *fault, const QByteArray &mesh, Problem problem = Problem::NoMesh) {
                  QTest::newRow(fault) << mesh << QByteArray() << problem;
              };
        badMesh("waits for a pipe", "pipe", Problem::Unreadable);
        badMesh("reads a device without end", "device", Problem::Unreadable);
        badMesh("reads 50 MB", QByteArray(50 << 20, ' '), Problem::TooLarge);
        badMesh("no limit of faces", withFaces(QByteArray("0,0,1,2,").repeated(75'000) + "0,0,1,2"),
                Problem::TooLarge);
        badMesh("drawn for minutes", withFaces(QByteArray("0,0,1,2,").repeated(1000) + "0,0,1,2"),
                Problem::TooLarge);
        badMesh("empty", " ");
        badMesh("noise", "\xff\x00\xfe{");
        badMesh("cut off", withFaces("0, 0, 1").chopped(1));
        badMesh("nested without end", QByteArray(1 << 20, '['));
        badMesh("other JSON", R"({"vertices": 7})");
        badMesh("no faces", withFaces(""));
        badMesh("index out of range", withFaces("0, 0, 1, 3"));
        badMesh("face cut off", withFaces("0, 0"));
        badMesh("no size", withFaces("0, 1, 1, 1"));
        badMesh("infinite", withFaces("0, 0, 1, 2").replace("9", "1e999"));
        badMesh("squares overflow", withFaces("0, 0, 1, 2").replace("9", "1e30"));
        QTest::newRow("picture cut off")
            << QByteArray() << QByteArray("\x89PNG\r\n\x1a\n") << Problem::NoImage;
        QTest::newRow("enormous picture")
            << QByteArray() << QByteArray("P6 30000 30000 255\n") << Problem::TooLarge;
        QTest::newRow("waits for a pipe of the texture")
            << QByteArray() << QByteArray("pipe") << Problem::Unreadable;
    }

    void badFiles()
    {
        QFETCH(const QByteArray, mesh);
        QFETCH(const QByteArray, texture);
        QFETCH(const Problem, problem);
        const auto bad = [this](const QByteArray &content) {
            if (content == "device")
                return u"/dev/zero"_s;
            if (content != "pipe")
                return file(u"bad"_s, content);
            mkfifo(path(u"pipe"_s).toLocal8Bit().constData(), S_IRUSR | S_IWUSR);
            return path(u"pipe"_s);
        };
        const QString good = file(u"good.json"_s, withFaces("8, 0, 1, 2, 0, 1, 2"));
        read(good);
        QCOMPARE(m_reader.problem(), Problem::None);
        if (texture.isEmpty())
            read(bad(mesh));
        else
            read(good, bad(texture));
        QCOMPARE(m_reader.problem(), problem);
        QVERIFY(!m_reader.problemFile().isEmpty() && m_reader.problemFile() != u"good.json"_s);
        QVERIFY(m_reader.frontMesh().positions.isEmpty() && m_reader.texture().isNull());
        read(good);
        QCOMPARE(m_reader.problem(), Problem::None);
    }

    // The last request counts, even if the first one takes longer.
    void abandoned()
    {
        const QString slow
            = file(u"slow.json"_s, withFaces(QByteArray("0,0,1,2,").repeated(74'000) + "0,0,1,2"));
        const QString good = file(u"good.json"_s, withFaces("8, 0, 1, 2, 0, 1, 2"));
        auto reader = std::make_unique<DeviceModelReader>();
        QSignalSpy finished(reader.get(), &DeviceModelReader::finished);
        const QString texture = QUrl::fromLocalFile(models + u"/textures/default.png"_s).toString();
        reader->read(QUrl::fromLocalFile(slow).toString(), texture);
        QTest::qWait(100); // until the script runs
        reader->read(QUrl::fromLocalFile(good).toString(), texture);
        QVERIFY(finished.wait());
        QCOMPARE(reader->frontMesh().positions.size(), 3);
        reader->read(QUrl::fromLocalFile(slow).toString(), texture);
        QTest::qWait(100);
        reader.reset();
        QCOMPARE(finished.size(), 1);
    }
};

QTEST_GUILESS_MAIN(DeviceModelReaderTest)

#include "tst_devicemodelreader.moc"
