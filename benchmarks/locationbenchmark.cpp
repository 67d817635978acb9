#include "locationbenchmark.h"

#include "ratio.h"

#include <messageboxanswers.h>
#include <plugindriver.h>
#include <waiting.h>

#include <QAbstractSocket>
#include <QDeadlineTimer>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QSignalSpy>
#include <QTest>
#include <QTime>
#include <QTimer>
#include <QUrl>

#include <algorithm>
#include <memory>

using namespace Qt::StringLiterals;
using namespace PluginDriver;
using namespace std::chrono_literals;

static constexpr int sentenceCount = 100'000;
static constexpr double frame = 16; // milliseconds

static QByteArray sentence(const QString &body)
{
    char sum = 0;
    const QByteArray text = body.toLatin1();
    for (const char character : text)
        sum = static_cast<char>(sum ^ character);
    return '$' + text + '*' + QByteArray::number(sum, 16).toUpper().rightJustified(2, '0') + "\r\n";
}

/// Returns kilobytes: "VmHWM" is the peak memory of the process, "VmRSS" its current memory.
static double memory(const QByteArray &key)
{
    QFile file("/proc/self/status");
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    const QByteArrayList lines = file.readAll().split('\n');
    for (const QByteArray &line : lines) {
        if (line.startsWith(key))
            return line.simplified().split(' ').at(1).toDouble();
    }
    return 0;
}

/// Returns the item of the type that \a file defines.
static QQuickItem *item(const QByteArray &file)
{
    const QList<QQuickItem *> items = view()->rootObject()->findChildren<QQuickItem *>();
    for (QQuickItem *item : items) {
        if (QByteArrayView(item->metaObject()->className()).startsWith(file))
            return item;
    }
    qFatal("There is no %s", file.constData());
}

static double milliseconds(const QElapsedTimer &timer)
{
    return static_cast<double>(timer.nsecsElapsed()) / 1e6;
}

/// Runs the event loop until there is another table. waitFor() would keep the loop busy.
static void openFile(const QString &log)
{
    QSignalSpy loaded(gpsPage()->property("trackReader").value<QObject *>(), SIGNAL(loaded()));
    QMetaObject::invokeMethod(gpsPage(), "openFile", Q_ARG(QUrl, QUrl::fromLocalFile(log)));
    if (!loaded.wait(2min))
        qFatal("The log was not read");
}

/// Returns the milliseconds from the choice of the file to the first frame with the table.
static double showTrack(const QString &log)
{
    QElapsedTimer timer;
    timer.start();
    openFile(log);
    QObject context;
    bool shown = false;
    QObject::connect(view(), &QQuickWindow::frameSwapped, &context, [&] { shown = true; });
    view()->update();
    waitFor("the picture", [&] { return shown; });
    return milliseconds(timer);
}

/// Returns the milliseconds that Node.js needs to parse the log with the plugin's script.
static double parseWithNode(const QString &log)
{
    std::vector<double> times;
    for (int round = 0; round < 3; ++round) {
        QProcess node;
        node.start("node", {NODE_PARSER, PARSER, log});
        if (!node.waitForFinished() || node.exitCode() != 0)
            qFatal("Node.js cannot parse the log");
        times.push_back(node.readAllStandardOutput().toDouble());
    }
    return quantile(times, 0.5);
}

/// Measures the longest time that the event loop was busy.
class GapMeter
{
public:
    GapMeter()
    {
        QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this] {
            m_longest = std::max(m_longest, milliseconds(m_sinceLast));
            m_sinceLast.start();
        });
        m_timer.start(1ms);
        m_sinceLast.start();
    }

    [[nodiscard]] double longest() const { return m_longest; }

private:
    QTimer m_timer;
    QElapsedTimer m_sinceLast;
    double m_longest = 0;
};

QString LocationBenchmark::writeLog(const QString &name, int sentences, bool pointsOnly)
{
    QFile file(m_folder.filePath(name));
    if (!file.open(QIODevice::WriteOnly))
        qFatal("The log cannot be written");
    for (int epoch = 0, written = 0; written < sentences; ++epoch) {
        const QString time = QTime(0, 0).addSecs(epoch).toString("hhmmss") + ".00";
        const QString position = u"60%1,N,030%2,E"_s.arg(epoch * 0.0001, 8, 'f', 5, u'0')
                                     .arg(epoch * 0.0002, 8, 'f', 5, u'0');
        file.write(sentence("GPGGA," + time + ',' + position + ",1,08,0.94,12.5,M,17.0,M,,"));
        ++written;
        if (pointsOnly)
            continue;
        file.write(sentence("GPGLL," + position + ',' + time + ",A"));
        file.write(sentence("GPGSA,A,3,04,05,,09,12,,,24,,,,,2.5,1.3,2.1"));
        for (int part = 1; part <= 3; ++part)
            file.write(sentence(u"GPGSV,3,%1,11,03,03,111,00,04,15,270,00,06,01,010,"
                                "00,13,06,292,00"_s.arg(part)));
        file.write(sentence("GPRMC," + time + ",A," + position + ",022.4,084.4,230326,003.1,W"));
        file.write(sentence("GPVTG,054.7,T,034.4,M,005.5,N,010.2,K"));
        written += 7;
    }
    return file.fileName();
}

double LocationBenchmark::parse(const QString &log)
{
    QFile file(log);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("The log cannot be read");
    const QVariant text = QString::fromLatin1(file.readAll());
    // An engine of its own, as the plugin's reader has one.
    QQmlEngine engine;
    QQmlComponent component(&engine);
    component.setData("import QtQml\n"
                      "import 'qrc:/emulationmanagement/js/location/nmea-parsing.js' as Nmea\n"
                      "QtObject { function parse(text) { const points = Nmea.loadNmeaLog(text);"
                      "points.forEach(point => point.timeString); return points.length } }",
                      {});
    const std::unique_ptr<QObject> parser(component.create());
    QVariant points;
    const double time = millisecondsOf([&] {
        QMetaObject::invokeMethod(parser.get(), "parse", Q_RETURN_ARG(QVariant, points),
                                  Q_ARG(QVariant, text));
    });
    if (points.toInt() == 0)
        qFatal("The log was not parsed");
    return time;
}

void LocationBenchmark::initTestCase()
{
    m_receiversLog = writeLog("receiver.nmea", sentenceCount, false);
    m_longLog = writeLog("long.nmea", 10 * sentenceCount, false);
    m_pointsLog = writeLog("points.nmea", sentenceCount, true);
    m_longPointsLog = writeLog("long-points.nmea", 10 * sentenceCount, true);
    m_smallLog = writeLog("small.nmea", 10, true);
    view()->show();
    gpsPage()->setProperty("active", true);
    QVERIFY(QTest::qWaitForWindowExposed(view()));
}

void LocationBenchmark::cleanupTestCase()
{
    const MessageBoxAnswers answers(QMessageBox::Ok);
    stopMachine();
    static_cast<void>(answers.waitForBox()); // which tells the user to load the track again
}

double LocationBenchmark::openLongTrack(const QString &log, int points)
{
    const auto *socket = invoker()->findChild<QAbstractSocket *>();
    static_cast<void>(showTrack(m_smallLog)); // so that only the points count
    // After a reconnection, the page uploads a track twice.
    QMetaObject::invokeMethod(invoker(), "webSocketConnected");
    const double before = memory("VmRSS");
    QSignalSpy replies(invoker(), SIGNAL(replyReceived(QString)));
    const GapMeter gaps;
    QElapsedTimer timer;
    timer.start();
    openFile(log);
    QEventLoop loop;
    // The second upload follows when the first one was written, at once.
    QTimer look;
    int idle = 0;
    connect(&look, &QTimer::timeout, &loop, [&] {
        idle = socket->bytesToWrite() == 0 ? idle + 1 : 0;
        if (idle == 5)
            loop.quit();
    });
    look.start(2ms);
    loop.exec();
    const double time = milliseconds(timer);
    report({.what = u"longest gap of the event loop with %1 points against 100 ms"_s.arg(points),
            .measured = gaps.longest(),
            .baseline = 100,
            .unit = "ms",
            .limit = 1});
    for (int uploads = 0; uploads < 2; ++uploads) {
        waitFor(
            "the reply to the upload",
            [&] {
                while (!replies.isEmpty()) {
                    if (replies.takeFirst().constFirst().toString().size() > 10 * points)
                        return true;
                }
                return false;
            },
            2min);
    }
    replies.clear();
    report({.what = u"memory a point of %1 while they are shown against 400 bytes"_s.arg(points),
            .measured = (memory("VmRSS") - before) * 1024 / points,
            .baseline = 400,
            .unit = "bytes",
            .limit = 1});
    static_cast<void>(showTrack(m_smallLog));
    report({.what = u"memory kept after %1 points when a small track is open, against 50 MB"_s.arg(
                points),
            .measured = (memory("VmRSS") - before) / 1024,
            .baseline = 50,
            .unit = "MB",
            .limit = 1});
    report({.what = u"choice to table and upload of %1 points against Node.js"_s.arg(points),
            .measured = time,
            .baseline = parseWithNode(log),
            .unit = "ms",
            .limit = 6.5});
    return time;
}

// Comes last, because it connects the window and has the highest memory.
void LocationBenchmark::testLongTracks()
{
    JournalReader journal(journalPath());
    openWindow(journal);
    const double time = openLongTrack(m_pointsLog, sentenceCount);
    const double longTime = openLongTrack(m_longPointsLog, 10 * sentenceCount);
    report({.what = "choice to table and upload of 1,000,000 points against 100,000",
            .measured = longTime,
            .baseline = time,
            .unit = "ms",
            .limit = 11});
}

void LocationBenchmark::testTable()
{
    for (const QString &log : {m_receiversLog, m_pointsLog}) {
        const bool limited = log == m_receiversLog;
        const QString what = limited ? u"a receiver's log"_s : u"a log of points only"_s;
        const double before = memory("VmRSS");
        const double shown = showTrack(log);
        const double size = static_cast<double>(QFileInfo(log).size()) / 1024;
        report({.what = "memory that reading and showing " + what + " takes at most",
                .measured = (memory("VmHWM") - before) / 1024,
                .baseline = size / 1024,
                .unit = "MB",
                .limit = limited ? std::optional(12.0) : std::nullopt});
        QMetaObject::invokeMethod(item("TrackPlayer"), "clear");
        view()->engine()->collectGarbage();
        report({.what = "reading and showing " + what + " against parsing it",
                .measured = shown,
                .baseline = quantile({parse(log), parse(log), parse(log)}, 0.5),
                .unit = "ms",
                .limit = limited ? std::optional(2.0) : std::nullopt});
    }
}

void LocationBenchmark::testParsing()
{
    const double time = quantile({parse(m_receiversLog), parse(m_receiversLog)}, 0.5);
    report({.what = "parsing 1,000,000 sentences against 100,000",
            .measured = parse(m_longLog),
            .baseline = time,
            .unit = "ms",
            .limit = 11});
    report({.what = "parsing a receiver's log against Node.js",
            .measured = time,
            .baseline = parseWithNode(m_receiversLog),
            .unit = "ms",
            .limit = 3});
    report({.what = "parsing a log of points only against Node.js",
            .measured = parse(m_pointsLog),
            .baseline = parseWithNode(m_pointsLog),
            .unit = "ms",
            .limit = 4});
}

void LocationBenchmark::testUpload()
{
    QVariantList track;
    QList<QList<double>> points;
    for (int i = 0; i < sentenceCount; ++i) {
        points << QList<double>{60 + i * 1e-5, 30 + i * 2e-5, 12.5 + i % 100, 1000};
        track << QVariantMap{{"latitude", QString::number(points.last().at(0), 'f', 7)},
                             {"longitude", QString::number(points.last().at(1), 'f', 7)},
                             {"altitude", QString::number(points.last().at(2), 'f', 2)},
                             {"interval", points.last().at(3)}};
    }
    std::vector<double> times;
    std::vector<double> loops;
    for (int round = 0; round < 5; ++round) {
        // Without a connection, the text is made but not sent.
        times.push_back(millisecondsOf([&] {
            QMetaObject::invokeMethod(gpsManager(), "loadTrack", Q_ARG(QVariantList, track));
        }));
        QString text;
        loops.push_back(millisecondsOf([&] {
            for (const QList<double> &point : std::as_const(points)) {
                text += QString::number(point.at(0), 'f', 7) + ','
                        + QString::number(point.at(1), 'f', 7) + ','
                        + QString::number(point.at(2), 'f', 2) + ',' + QString::number(point.at(3))
                        + ';';
            }
        }));
        QVERIFY(!text.isEmpty());
    }
    report({.what = "text of a track of 100,000 points against a plain loop",
            .measured = quantile(times, 0.5),
            .baseline = quantile(loops, 0.5),
            .unit = "ms",
            .limit = 2});
}

void LocationBenchmark::testPlayback()
{
    static constexpr int steps = 1000;
    static constexpr auto interval = 100ms;
    QFile file(m_folder.filePath("steps.nmea"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    for (int i = 0; i <= steps; ++i) {
        file.write(sentence("GPGLL,6000.00000,N,03000.00000,E,"
                            + QTime(0, 0).addMSecs(i * interval.count()).toString("hhmmss.zzz")
                            + ",A"));
    }
    file.close();
    static_cast<void>(showTrack(file.fileName()));

    // A sequence of single-shot timers with the precision of the page's timers.
    int bareSteps = 0;
    double bareTime = 0;
    QElapsedTimer clock;
    QTimer bare;
    bare.setSingleShot(true);
    connect(&bare, &QTimer::timeout, this, [&] {
        bareTime = static_cast<double>(clock.nsecsElapsed()) / 1e6;
        if (++bareSteps < steps)
            bare.start(interval);
    });
    // waitFor() would block the event loop for milliseconds at a time.
    QSignalSpy stepped(gpsManager(), SIGNAL(currentPositionIndexChanged()));
    clock.start();
    bare.start(interval);
    QMetaObject::invokeMethod(item("TrackPlayer"), "start");
    while (gpsManager()->property("currentPositionIndex").toInt() < steps)
        QVERIFY(stepped.wait());
    const double time = static_cast<double>(clock.nsecsElapsed()) / 1e6;
    waitFor("the bare timers", [&] { return bareSteps == steps; });

    static constexpr double due = steps * static_cast<double>(interval.count());
    report({.what = "how late a step of a track comes on average, against one frame",
            .measured = (time - due) / steps,
            .baseline = frame,
            .unit = "ms",
            .limit = 1});
    report({.what = "1,000 steps of 100 ms against as many bare single-shot timers",
            .measured = time,
            .baseline = bareTime,
            .unit = "ms"});
}
