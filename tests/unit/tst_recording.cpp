#include <link/calllog.h>
#include <link/methodarguments.h>
#include <link/positionshift.h>
#include <link/recording.h>
#include <link/recordingplayer.h>
#include <link/recordingwriter.h>
#include <link/remotedbusinvokerservice.h>
#include <support/recordingrelay.h>

#include <QBuffer>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <sys/resource.h>

#include <cerrno>
#include <csignal>

using namespace EmulationManagement::Internal;
using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

static const QByteArray header
    = R"({"format": "emulation", "version": 1, "unit": "ms", "start": "2026-11-22T08:00:00Z"})"
      "\n";

static Recording readText(QByteArray text)
{
    QBuffer buffer(&text);
    buffer.open(QIODevice::ReadOnly);
    return Recording::read(buffer);
}

static QByteArray als(double after, int lux)
{
    return uR"({"after": %1, "service": "sensors", "method": "setAlsValue", "arguments": [%2]})"_s
               .arg(after)
               .arg(lux)
               .toUtf8()
           + '\n';
}

static QByteArray line(double after, const QString &service, const QString &call)
{
    return RecordingWriter::callLine(std::chrono::microseconds(qint64(after * 1000)),
                                     *findMethod(*findService(service), call.section(u' ', 0, 0)),
                                     call.section(u' ', 1));
}

static QString text(const Recording &recording)
{
    QStringList calls;
    for (const RecordedCall &call : recording.calls()) {
        calls << u"%1 %2 %3"_s.arg(double(call.time.count()) / 1000)
                     .arg(call.method->name, call.arguments);
    }
    return calls.join(u'\n');
}

class RecordingTest : public QObject
{
    Q_OBJECT

    // The calls that have arrived, without service and method "setAlsValue int32:".
    static QString taken(TestSupport::RecordingRelay &relay, RemoteDBusInvokerService &link)
    {
        QStringList calls;
        for (const QString &request : relay.takeRequests(link))
            calls << request.section(u' ', 4).remove(u"setAlsValue int32:"_s).trimmed();
        return calls.join(u';');
    }

private Q_SLOTS:
    void mistakesNameTheirLine()
    {
        QFile file(QStringLiteral(TEST_DATA "/bad-lines.jsonl"));
        QVERIFY(file.open(QIODevice::ReadOnly));
        int mistakes = 0;
        while (!file.atEnd()) {
            const QString expected = QString::fromUtf8(file.readLine().sliced(2).trimmed());
            const QByteArray bad = file.readLine();
            const bool isHeader = bad.contains("format");
            const Recording recording
                = readText(isHeader ? bad : "# comment\n\n" + header + als(0, 1) + bad + als(0, 2));
            const QString error = recording.error();
            QVERIFY2(error.startsWith(isHeader ? u"Line 1: "_s : u"Line 5: "_s), qPrintable(error));
            QVERIFY2(error.contains(expected), qPrintable(error));
            QVERIFY(recording.calls().empty());
            ++mistakes;
        }
        QVERIFY(mistakes > 10);
    }

    void filesThatEndEarly_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QString>("calls");
        QTest::addColumn<QString>("warning");
        QTest::addColumn<QString>("error");
        QTest::newRow("empty file played")
            << QByteArray() << u""_s << u""_s << u"The file is empty."_s;
        QTest::newRow("last line without its end refused")
            << QByteArray(header + als(1, 5).trimmed()) << u"1 setAlsValue int32:5"_s << u""_s
            << u""_s;
        QTest::newRow("torn last line refused")
            << QByteArray(header + als(1, 5) + als(1, 6).first(20)) << u"1 setAlsValue int32:5"_s
            << u"Line 3 is incomplete and was left out."_s << u""_s;
        QTest::newRow("torn line in the middle left out")
            << QByteArray(header + als(1, 5).first(20) + '\n' + als(1, 6)) << u""_s << u""_s
            << u"Line 2: this is not a JSON object."_s;
        QTest::newRow("no line is like none") << QByteArray(header) << u""_s << u""_s << u""_s;
    }

    void filesThatEndEarly()
    {
        QFETCH(const QByteArray, content);
        const Recording recording = readText(content);
        QTEST(recording.error(), "error");
        QTEST(recording.warning(), "warning");
        QTEST(text(recording), "calls");
    }

    // Reading and writing every method gives the same lines, but for spaces and the header.
    void writtenLinesReadTheSame()
    {
        const Recording recording
            = Recording::readFile(QStringLiteral(TEST_DATA "/every-method.emulation.jsonl"));
        QCOMPARE(recording.error(), QString());
        QByteArray written = RecordingWriter::headerLine(recording.start());
        std::chrono::microseconds last{};
        for (const RecordedCall &call : recording.calls()) {
            written += RecordingWriter::callLine(call.time - last, *call.method, call.arguments);
            last = call.time;
        }
        const Recording again = readText(written);
        QCOMPARE(again.error(), QString());
        QCOMPARE(text(again), text(recording));
        QCOMPARE(again.start(), recording.start());
        QCOMPARE(Recording::readFile(QStringLiteral(DOCUMENTS "/session.emulation.jsonl")).error(),
                 QString());
    }

    void whatIsSentIsWritten()
    {
        TestSupport::RecordingRelay relay;
        RemoteDBusInvokerService link;
        QVERIFY(relay.connectLink(link));
        const QTemporaryDir folder;
        const QString path = folder.filePath(u"session.emulation.jsonl"_s);
        QStringList sent;
        {
            RecordingWriter writer;
            QVERIFY(!writer.open(folder.path()).isEmpty());
            QCOMPARE(writer.open(path), QString());
            writer.watch(&link);
            for (int i = 0; i < 1000; ++i) {
                sent << u"setAlsValue int32:%1"_s.arg(i);
                link.sendRequest(requestAddress(sensorsService) + sent.last());
                if (i % 100 == 0)
                    QTest::qSleep(2);
            }
            const QString points = QString(u"1.0000000,2.0000000,3.00,4;"_s).repeated(50'000);
            sent << u"loadTrack array:array:double:"_s + points.chopped(1);
            link.sendRequest(requestAddress(locationService) + sent.last());
            link.sendRequest(u"not described"_s);
            QTRY_COMPARE(writer.count(), 1001); // a long request waits for its turn
            QCOMPARE(writer.close(), QString());
        }
        const Recording recording = Recording::readFile(path);
        QCOMPARE(recording.error(), QString());
        QCOMPARE(recording.calls().size(), std::size_t(sent.size()));
        for (std::size_t i = 0; i < recording.calls().size(); ++i) {
            const RecordedCall &call = recording.calls()[i];
            QCOMPARE(call.method->name + u' ' + call.arguments, sent.at(qsizetype(i)));
        }
        QVERIFY(recording.duration() >= 18ms);
    }

    void fullDiskIsToldAtOnce()
    {
        const QTemporaryDir folder;
        RecordingWriter writer;
        QCOMPARE(writer.open(folder.filePath(u"full"_s)), QString());
        QSignalSpy failed(&writer, &RecordingWriter::failed);
        std::signal(SIGXFSZ, SIG_IGN);
        rlimit limit{};
        getrlimit(RLIMIT_FSIZE, &limit);
        const rlimit small{.rlim_cur = 100, .rlim_max = limit.rlim_max};
        setrlimit(RLIMIT_FSIZE, &small);
        writer.add(RecordingWriter::Clock::now(), *findMethod(cameraService, u"stop"), u"[]"_s);
        const bool isTold = failed.wait();
        setrlimit(RLIMIT_FSIZE, &limit);
        QVERIFY(isTold);
        QCOMPARE(writer.close(), qt_error_string(EFBIG)); // a short write has no error
        QCOMPARE(writer.open(folder.filePath(u"gone"_s)), QString());
        QVERIFY(QFile::remove(folder.filePath(u"gone"_s)));
        QCOMPARE(writer.close(), qt_error_string(ENOENT));
    }

    void savedLogLeavesOutWhatWasNotSent()
    {
        TestSupport::RecordingRelay relay;
        RemoteDBusInvokerService link;
        CallLog log(&link);
        link.sendRequest(requestAddress(sensorsService) + u"setAlsValue int32:1"_s); // dropped
        QVERIFY(relay.connectLink(link));
        log.add(*findMethod(cameraService, u"stop"), u"[]"_s);
        link.sendRequest(requestAddress(sensorsService) + u"setAlsValue int32:2"_s);
        link.sendRequest(requestAddress(locationService) + u"loadTrack array:array:double:"_s
                         + QString(CallLog::longestText, u'1'));
        log.note(u"30 frames a second"_s);
        std::vector<LoggedCall> calls;
        for (qint64 serial = log.begin(); serial < log.end(); ++serial)
            calls.push_back(log.at(serial));
        const QTemporaryDir folder;
        const QString path = folder.filePath(u"saved"_s);
        QString error;
        const RecordingWriter::Saved saved = RecordingWriter::save(path, calls, log, &error);
        QCOMPARE(error, QString());
        QCOMPARE(saved.calls, 2);
        QCOMPARE(saved.leftOut, 3);
        const Recording recording = Recording::readFile(path);
        QCOMPARE(recording.error(), QString());
        QCOMPARE(recording.calls().back().arguments, u"int32:2"_s);
        RecordingWriter::save(folder.path(), calls, log, &error);
        QVERIFY(!error.isEmpty());
    }

    void callsComeInTheirTimeAndOrder()
    {
        TestSupport::RecordingRelay relay;
        RemoteDBusInvokerService link;
        QVERIFY(relay.connectLink(link));
        RecordingPlayer player(&link);
        QSignalSpy finished(&player, &RecordingPlayer::finished);
        QSignalSpy camera(&player, &RecordingPlayer::cameraCallDue);
        Recording recording
            = readText(header + als(100, 1) + line(0, u"camera"_s, u"stop"_s)
                       + line(60, u"location"_s, u"stopTrack"_s) + als(40, 2) + als(0, 3));
        player.setServices({&sensorsService, &cameraService});
        player.setRecording(recording);
        player.setRate(2);
        QElapsedTimer time;
        time.start();
        player.play();
        QVERIFY(finished.wait());
        QVERIFY(time.durationElapsed() >= 100ms); // half of 200
        QCOMPARE(taken(relay, link), u"1;2;3"_s);
        QCOMPARE(camera.size(), 1);
        QCOMPARE(player.totals().calls, 4);
        player.play();
        QVERIFY(finished.wait());
        QCOMPARE(player.totals().calls, 4); // each play counts anew
        QCOMPARE(player.state(), RecordingPlayer::State::Stopped);
    }

    void startInTheMiddleSendsTheLastValues()
    {
        TestSupport::RecordingRelay relay;
        RemoteDBusInvokerService link;
        QVERIFY(relay.connectLink(link));
        RecordingPlayer player(&link);
        player.setRecording(
            readText(header + als(0, 1) + line(1, u"sensors"_s, u"enableSensor string:als"_s)
                     + line(1, u"sensors"_s, u"disableSensor string:tap"_s)
                     + line(1, u"sensors"_s, u"disableSensor string:als"_s)
                     + line(1, u"sensors"_s, u"enabled string:als"_s)
                     + line(1, u"location"_s, u"startTrack"_s) + als(1, 2)
                     + line(1, u"location"_s, u"pauseTrack"_s) + als(100, 3) + als(1000, 4)));
        player.seek(50ms);
        QCOMPARE(taken(relay, link),
                 u"disableSensor string:tap;disableSensor string:als;2;pauseTrack"_s);
        player.step();
        QCOMPARE(taken(relay, link), u"3"_s);
        QCOMPARE(player.position(), 107ms);
        player.step();
        QCOMPARE(taken(relay, link), u"4"_s);
        QSignalSpy finished(&player, &RecordingPlayer::finished);
        player.play(); // at the end
        player.setRate(100);
        QVERIFY(finished.wait());
        QVERIFY(taken(relay, link).startsWith(u"1;"_s));
        player.step();
        QCOMPARE(taken(relay, link), u"1"_s);
    }

    void pauseKeepsThePlace()
    {
        TestSupport::RecordingRelay relay;
        RemoteDBusInvokerService link;
        QVERIFY(relay.connectLink(link));
        RecordingPlayer player(&link);
        QSignalSpy finished(&player, &RecordingPlayer::finished);
        player.setRecording(readText(header + als(0, 1) + als(60, 2)));
        player.play();
        QTRY_COMPARE(player.totals().calls, 1);
        player.pause();
        const auto place = player.position();
        QTest::qWait(100); // longer than the rest
        QCOMPARE(taken(relay, link), u"1"_s);
        QCOMPARE(player.position(), place);
        player.play();
        QVERIFY(finished.wait());
        QCOMPARE(taken(relay, link), u"2"_s);
    }

    void loopGoesOnUntilItIsStopped()
    {
        TestSupport::RecordingRelay relay;
        RemoteDBusInvokerService link;
        QVERIFY(relay.connectLink(link));
        RecordingPlayer player(&link);
        QSignalSpy finished(&player, &RecordingPlayer::finished);
        player.setLooped(true);
        player.setRecording(readText(header + als(1, 1) + als(1, 2)));
        player.play();
        QTRY_VERIFY(player.totals().calls >= 6);
        player.stop();
        QVERIFY(taken(relay, link).startsWith(u"1;2;1;2;1;2"_s));
        QVERIFY(finished.isEmpty());
        player.setRecording(readText(header + als(0, 1))); // would loop without a pause
        player.play();
        QTRY_COMPARE(finished.size(), 1);
    }

    void lostLinkHoldsOrEndsIt()
    {
        TestSupport::RecordingRelay relay;
        RemoteDBusInvokerService link;
        QVERIFY(relay.connectLink(link));
        QSignalSpy connected(&link, &RemoteDBusInvokerService::webSocketConnected);
        RecordingPlayer player(&link);
        QSignalSpy finished(&player, &RecordingPlayer::finished);
        QSignalSpy linkIsDown(&player, &RecordingPlayer::linkIsDown);
        player.setRecording(readText(header + als(0, 1) + als(200, 2)));
        player.play();
        QTRY_COMPARE(player.totals().calls, 1);
        relay.stop();
        QVERIFY(linkIsDown.wait());
        QTest::qWait(250); // longer than the rest
        QCOMPARE(player.totals().calls, 1);
        QVERIFY(relay.listen());
        QVERIFY(finished.wait());
        QVERIFY(taken(relay, link).endsWith(u"1;2"_s)); // the emulator may have started anew

        player.setWhenLinkIsDown(RecordingPlayer::WhenLinkIsDown::Stop);
        player.play();
        relay.stop();
        QVERIFY(linkIsDown.wait());
        QCOMPARE(player.state(), RecordingPlayer::State::Stopped);
    }

    void movedPositionsKeepTheirDistances()
    {
        Recording recording = readText(
            header + line(0, u"location"_s, u"setPosition double:0 double:0 double:1"_s)
            + line(0, u"location"_s, u"loadTrack array:array:double:60,30,5,0;60.5,31,5,9"_s)
            + line(0, u"location"_s, u"setPosition double:60 double:30 double:1"_s)
            + line(0, u"location"_s, u"setLatitude double:61"_s)
            + line(0, u"location"_s, u"setLongitude double:32"_s));
        recording.movePositions({.latitude = 0, .longitude = 179.75});
        QCOMPARE(text(recording), u"0 setPosition double:0.0000000 double:0.0000000 double:1.00\n"
                                  "0 loadTrack array:array:double:0.0000000,179.7500000,5.00,0;"
                                  "0.5000000,-179.7500000,5.00,9\n"
                                  "0 setPosition double:0.0000000 double:179.7500000 double:1.00\n"
                                  "0 setLatitude double:1.0000000\n"
                                  "0 setLongitude double:-179.2500000"_s);
    }
};

QTEST_GUILESS_MAIN(RecordingTest)

#include "tst_recording.moc"
