#include "tourguide.h"

#include "plugindriver.h"
#include "waiting.h"

#include <QGuiApplication>
#include <QMap>
#include <QPixmap>
#include <QScreen>
#include <QTest>

#include <algorithm>
#include <cstdio>
#include <utility>

using namespace Qt::StringLiterals;

static void say(const QString &line)
{
    std::puts(qPrintable(line));
    std::fflush(stdout);
}

TourGuide::TourGuide(QString pictureFolder)
    : m_window(PluginDriver::view())
    , m_journal(PluginDriver::journalPath())
    , m_pictureFolder(std::move(pictureFolder))
{}

void TourGuide::begin(const QString &step)
{
    say(step);
    m_stepStart = m_journal.position();
}

QStringList TourGuide::calls()
{
    return m_journal.callsSince(m_stepStart);
}

void TourGuide::waitForCall(const QString &call)
{
    m_journal.waitForCall(call, m_stepStart);
}

void TourGuide::waitForEvent(const QString &event)
{
    m_journal.waitForEvent(event, m_stepStart);
}

void TourGuide::waitForVideo(QSize size)
{
    waitFor(u"pictures of %1x%2"_s.arg(size.width()).arg(size.height()), [&] {
        const QList<QJsonObject> entries = m_journal.entriesSince(m_stepStart);
        return std::ranges::any_of(entries, [&](const QJsonObject &entry) {
            return entry.value(u"event").toString() == u"video"
                   && entry.value(u"width").toInt() == size.width()
                   && entry.value(u"height").toInt() == size.height()
                   && entry.value(u"broken").toInt() == 0;
        });
    });
}

void TourGuide::takePicture(const QString &name)
{
    static constexpr int untilDrawn = 300; // milliseconds until animations have ended
    QTest::qWait(untilDrawn);
    const QString path = u"%1/%2-%3.png"_s.arg(m_pictureFolder)
                             .arg(++m_pictureCount, 2, 10, QChar(u'0'))
                             .arg(name);
    if (!QGuiApplication::primaryScreen()->grabWindow().save(path))
        throw WaitingFailed("the picture " + path.toStdString() + " could not be saved");
    say(u"  picture %1"_s.arg(path));
}

void TourGuide::printAllCalls()
{
    static constexpr int longestCall = 100; // a track has many points
    QMap<QString, std::pair<int, QString>> calls; // the number of calls and the last one, by method
    const QStringList received = m_journal.callsSince(0);
    for (const QString &call : received) {
        auto &[count, last] = calls[call.section(u' ', 0, 0)];
        ++count;
        last = call;
    }
    say(u"The emulator received %1 calls; of each method the last:"_s.arg(received.size()));
    for (const auto &[count, last] : std::as_const(calls))
        say(u"  %1 × %2"_s.arg(count, 4).arg(last.left(longestCall)));
}
