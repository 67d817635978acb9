#include "trackreader.h"

#include "trackreading.h"

#include <script/scriptrun.h>

#include <QFile>
#include <QPromise>
#include <QStringConverter>
#include <QtConcurrentRun>

#include <algorithm>
#include <memory>
#include <optional>
#include <utility>

using namespace Qt::StringLiterals;

namespace EmulationManagement::Internal {

// Parts of the progress. Parsing takes most of the time.
static constexpr int wholeProgress = 1000;
static constexpr int readProgress = 20;    // when the text has been read
static constexpr int parsedProgress = 950; // when it has been parsed; the upload's text follows

// Returns nothing if the file cannot be read.
static std::optional<QString> readText(QPromise<TrackReadingResult> &promise, const QString &path)
{
    static constexpr qint64 pieceSize = 1 << 20; // bytes
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    QStringDecoder decoder(QStringDecoder::Utf8);
    QString text;
    text.reserve(file.size()); // most files are ASCII
    while (!file.atEnd() && !promise.isCanceled()) {
        const QByteArray piece = file.read(pieceSize);
        if (piece.isEmpty())
            return std::nullopt;
        text += decoder(piece);
        promise.setProgressValue(
            int(readProgress * file.pos() / std::max(file.size(), file.pos())));
    }
    return text;
}

static void readTrack(QPromise<TrackReadingResult> &promise, const QString &path, int maximumPoints,
                      const QString &uploadBegin)
{
    promise.setProgressRange(0, wholeProgress);
    std::optional<QString> text = readText(promise, path);
    if (promise.isCanceled())
        return;
    if (!text) {
        promise.addResult({.failed = true});
        return;
    }
    auto reading = std::make_unique<TrackReading>(
        std::move(*text), maximumPoints, [&promise](double parsed) {
            promise.setProgressValue(readProgress + int((parsedProgress - readProgress) * parsed));
            return !promise.isCanceled();
        });
    runScript(QUrl(u"qrc:/emulationmanagement/qml/location/NmeaLogReader.qml"_s),
              {{u"reading"_s, QVariant::fromValue(reading.get())}});
    if (promise.isCanceled())
        return;
    if (reading->hasFailed()) {
        promise.addResult({.failed = true,
                           .errorMessage = reading->errorMessage(),
                           .errorLine = reading->errorLine()});
        return;
    }
    QList<TrackPoint> points = reading->takePoints();
    reading.reset(); // with its text, which takes more memory than all that follows
    promise.addResult({.track = Track(std::move(points), uploadBegin)});
}

TrackReader::TrackReader(QString uploadBegin, QObject *parent)
    : QObject(parent)
    , m_uploadBegin(std::move(uploadBegin))
{
    m_thread.setMaxThreadCount(1);
    m_usualDurationTimer.setSingleShot(true);
    connect(&m_usualDurationTimer, &QTimer::timeout, this, [this] { setTakingLong(true); });
    using Watcher = QFutureWatcherBase;
    connect(&m_watcher, &Watcher::progressValueChanged, this, &TrackReader::progressChanged);
    connect(&m_watcher, &Watcher::canceled, this, &TrackReader::cancel);
    connect(&m_watcher, &Watcher::finished, this, &TrackReader::finish);
}

TrackReader::~TrackReader()
{
    abandon();
}

double TrackReader::progress() const
{
    return m_reading ? double(m_watcher.progressValue()) / wholeProgress : 0;
}

void TrackReader::read(const QUrl &url, int maximumPoints)
{
    abandon();
    m_watcher.setFuture(
        QtConcurrent::run(&m_thread, &readTrack, url.toLocalFile(), maximumPoints, m_uploadBegin));
    m_usualDurationTimer.start(usualDuration);
    m_reading = true;
    Q_EMIT progressChanged();
    Q_EMIT readingChanged();
}

void TrackReader::cancel()
{
    if (abandon())
        Q_EMIT canceled();
}

// Returns whether a file was being read.
bool TrackReader::abandon()
{
    if (!m_reading)
        return false;
    m_watcher.future().cancel();
    m_watcher.setFuture({}); // takes no more events of the old one
    m_usualDurationTimer.stop();
    m_reading = false;
    setTakingLong(false);
    Q_EMIT readingChanged();
    return true;
}

void TrackReader::finish()
{
    if (!m_reading)
        return;
    QFuture<TrackReadingResult> future = m_watcher.future();
    if (future.isCanceled())
        return cancel();
    TrackReadingResult result = future.takeResult();
    m_usualDurationTimer.stop();
    m_reading = false;
    setTakingLong(false);
    Q_EMIT readingChanged();
    if (result.failed) {
        Q_EMIT failed(result.errorMessage, result.errorLine);
        return;
    }
    m_track = std::move(result.track);
    Q_EMIT loaded();
}

Track TrackReader::takeTrack()
{
    return std::exchange(m_track, {});
}

void TrackReader::setTakingLong(bool takingLong)
{
    if (takingLong == m_takingLong)
        return;
    m_takingLong = takingLong;
    Q_EMIT takingLongChanged();
}

} // namespace EmulationManagement::Internal
