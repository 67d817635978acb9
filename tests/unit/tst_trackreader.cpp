#include <location/trackmodel.h>
#include <location/trackoutline.h>
#include <location/trackreader.h>

#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>

using namespace EmulationManagement::Internal;
using namespace Qt::StringLiterals;

static constexpr int maximumPoints = 1'000'000;
static constexpr int longLog = 300'000; // points, which take longer than TrackReader::usualDuration

class TrackReaderTest : public QObject
{
    Q_OBJECT

    QTemporaryDir m_folder;

    QUrl log(const QString &name, int lines,
             const QByteArray &line = "$GPWPL,6000.00,N,03000.00,E,W*5C\n") const
    {
        QFile file(m_folder.filePath(name));
        if (!file.open(QIODevice::WriteOnly))
            qFatal("The log cannot be written");
        file.write(line.repeated(lines));
        return QUrl::fromLocalFile(file.fileName());
    }

private Q_SLOTS:
    // The texts that the emulator gets are those of the table, read as numbers.
    void texts_data()
    {
        QTest::addColumn<QByteArray>("sentences");
        QTest::addColumn<QVariantMap>("point");
        QTest::addColumn<QString>("upload");
        const auto add = [](const char *fault, const char *sentences, const char *latitude,
                            const char *altitude, double interval, const char *upload) {
            QTest::newRow(fault) << QByteArray(sentences)
                                 << QVariantMap{{u"latitude"_s, QString::fromLatin1(latitude)},
                                                {u"longitude"_s, u"11.5166667"_s},
                                                {u"altitude"_s, QString::fromLatin1(altitude)},
                                                {u"interval"_s, interval}}
                                 << QString::fromLatin1(upload);
        };
        add("interval or altitude lost",
            "$GPGGA,123519,4807.038,N,01131.000,E,1,08,0.9,545.4,M,46.9,M,,*47\n"
            "$GPGGA,123521.50,4807.039,S,01131.000,E,1,08,0.9,5.456,M,46.9,M,,*47\n",
            "-48.1173167", "5.46", 2500,
            "48.1173000,11.5166667,545.40,0;-48.1173167,11.5166667,5.46,2500");
        add("altitude with group separators sent",
            "$GPGGA,123519,4807.038,N,01131.000,E,1,08,0.9,1234.5,M,46.9,M,,*47\n", "48.1173000",
            "1,234.50", 0, "48.1173000,11.5166667,0.00,0");
        add("rounded after it was compared",
            "$GPGGA,123519,4807.038,N,01131.000,E,1,08,0.9,999.996,M,46.9,M,,*47\n", "48.1173000",
            "1,000.00", 0, "48.1173000,11.5166667,0.00,0");
    }

    void texts()
    {
        QFETCH(const QByteArray, sentences);
        QFETCH(const QVariantMap, point);
        QFETCH(const QString, upload);
        QFile file(m_folder.filePath(u"texts.nmea"_s));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(sentences);
        file.close();
        TrackReader reader(u"x "_s);
        TrackModel model;
        QSignalSpy loaded(&reader, &TrackReader::loaded);
        reader.read(QUrl::fromLocalFile(file.fileName()), maximumPoints);
        QVERIFY(loaded.wait());
        model.takeTrack(&reader);
        QCOMPARE(model.at(model.rowCount() - 1), point);
        QCOMPARE(model.track().uploadRequest, u"x array:array:double:"_s + upload);
        model.clear();
        QCOMPARE(model.rowCount(), 0);
        QVERIFY(!model.at(0).isEmpty()); // the record is left as it was
    }

    void outline_data()
    {
        QTest::addColumn<QList<TrackPoint>>("points");
        QTest::addColumn<QList<QPointF>>("line");
        QTest::newRow("not true to scale") << QList<TrackPoint>{{.latitude = 59, .longitude = 30},
                                                                {.latitude = 61, .longitude = 32}}
                                           << QList<QPointF>{{0, 1}, {0.5, 0}};
        QTest::newRow("goes around the world at the 180th meridian")
            << QList<TrackPoint>{{.longitude = 179}, {.longitude = -179}}
            << QList<QPointF>{{0, 0}, {1, 0}};
        QTest::newRow("division by zero")
            << QList<TrackPoint>{{.latitude = 60}, {.latitude = 60}} << QList<QPointF>{{0, 0}};
        QTest::newRow("empty") << QList<TrackPoint>() << QList<QPointF>();
    }

    void outline()
    {
        QFETCH(const QList<TrackPoint>, points);
        QFETCH(const QList<QPointF>, line);
        const TrackOutline outline(points);
        for (const QPointF &place : line) {
            const auto isNear = [place](const QPointF &other) {
                return (other - place).manhattanLength() < 1e-3;
            };
            QVERIFY(std::ranges::any_of(outline.line(), isNear));
        }
        for (const TrackPoint &point : points)
            QVERIFY(outline.line().contains(outline.place(point)));
        QCOMPARE(outline.line().isEmpty(), points.isEmpty());
    }

    void longOutlineIsDrawnQuickly()
    {
        QList<TrackPoint> points(longLog);
        for (int i = 0; i < longLog; ++i)
            points[i] = {.latitude = double(i % 7), .longitude = double(i % 11)};
        QVERIFY(TrackOutline(points).line().size() < 10'000);
    }

    void nothingOfACancelledReadingArrives_data()
    {
        QTest::addColumn<bool>("another");
        QTest::addColumn<bool>("late");
        QTest::newRow("script runs on") << false << true;
        QTest::newRow("script starts after it was cancelled") << false << false;
        QTest::newRow("another file waits for the first") << true << true;
        QTest::newRow("first file arrives later") << true << false;
    }

    void nothingOfACancelledReadingArrives()
    {
        QFETCH(const bool, another);
        QFETCH(const bool, late);
        TrackReader reader({});
        QSignalSpy loaded(&reader, &TrackReader::loaded);
        QSignalSpy failed(&reader, &TrackReader::failed);
        QSignalSpy canceled(&reader, &TrackReader::canceled);
        reader.read(log(u"long.nmea"_s, longLog), maximumPoints);
        if (late)
            QTRY_VERIFY(reader.isTakingLong());
        const QFuture<void> first = reader.future();
        if (another)
            reader.read(log(u"small.nmea"_s, 3), maximumPoints);
        else
            reader.cancel();
        QVERIFY(!reader.isTakingLong());
        QTRY_VERIFY(first.isFinished());
        QTRY_COMPARE(loaded.size(), another ? 1 : 0);
        QCOMPARE(reader.takeTrack().points.size(), another ? 3 : 0);
        QCOMPARE(canceled.size(), another ? 0 : 1);
        QVERIFY(failed.isEmpty());
        QVERIFY(!reader.isReading());
    }

    // Lines are counted for the error's number.
    void countingLinesCanBeCancelled()
    {
        TrackReader reader({});
        reader.read(log(u"lines.txt"_s, 20'000'000, "a\n"), maximumPoints);
        QTRY_VERIFY(reader.progress() > 0.5);
        const QFuture<void> future = reader.future();
        reader.cancel();
        QTRY_VERIFY(future.isFinished());
    }

    void indicatorCancels()
    {
        TrackReader reader({});
        QSignalSpy canceled(&reader, &TrackReader::canceled);
        reader.read(log(u"long.nmea"_s, longLog), maximumPoints);
        QTRY_VERIFY(reader.isTakingLong());
        QVERIFY(reader.progress() > 0 && reader.progress() < 1);
        reader.future().cancel();
        QVERIFY(canceled.wait());
        QVERIFY(!reader.isReading());
    }

    void memoryReturns()
    {
        TrackModel model;
        TrackReader reader({});
        QSignalSpy loaded(&reader, &TrackReader::loaded);
        reader.read(log(u"long.nmea"_s, longLog), maximumPoints);
        QVERIFY(loaded.wait(20'000));
        model.takeTrack(&reader);
        Track track = model.track();
        QCOMPARE(track.points.size(), longLog);
        QVERIFY(!track.points.isDetached());
        reader.read(log(u"small.nmea"_s, 3), maximumPoints);
        QVERIFY(loaded.wait());
        model.takeTrack(&reader);
        QVERIFY(track.points.isDetached() && track.uploadRequest.isDetached());
    }
};

QTEST_GUILESS_MAIN(TrackReaderTest)

#include "tst_trackreader.moc"
