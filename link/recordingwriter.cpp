#include "recordingwriter.h"

#include "calllog.h"
#include "methodarguments.h"
#include "remotedbusinvokerservice.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QSaveFile>

#include <algorithm>
#include <cerrno>

using namespace Qt::StringLiterals;

namespace EmulationManagement::Internal {

static QByteArray quoted(QLatin1StringView name)
{
    return '"' + QByteArray(name.data(), name.size()) + '"';
}

RecordingWriter::RecordingWriter(QObject *parent)
    : QObject(parent)
{
    m_thread.setMaxThreadCount(1);
}

RecordingWriter::~RecordingWriter()
{
    m_thread.waitForDone();
}

QByteArray RecordingWriter::headerLine(const QDateTime &start)
{
    const QJsonObject header{{u"format"_s, Recording::formatName},
                             {u"version"_s, Recording::version},
                             {u"unit"_s, u"ms"_s},
                             {u"start"_s, start.toUTC().toString(Qt::ISODateWithMs)}};
    return QJsonDocument(header).toJson(QJsonDocument::Compact) + '\n';
}

// QJsonObject would sort the members, and people read the time first.
QByteArray RecordingWriter::callLine(std::chrono::microseconds after, const ServiceMethod &method,
                                     QStringView arguments)
{
    const std::chrono::duration<double, std::milli> milliseconds = after;
    const QJsonArray values = MethodArguments::toJson(method, arguments);
    return "{\"after\": "
           + QByteArray::number(milliseconds.count(), 'g', QLocale::FloatingPointShortest)
           + ", \"service\": " + quoted(method.service->name)
           + ", \"method\": " + quoted(method.name)
           + ", \"arguments\": " + QJsonDocument(values).toJson(QJsonDocument::Compact) + "}\n";
}

QString RecordingWriter::open(const QString &path)
{
    m_file.setFileName(path);
    if (!m_file.open(QIODevice::WriteOnly | QIODevice::Truncate | QIODevice::Unbuffered))
        return m_file.errorString();
    m_start = Clock::now();
    m_lastTime = {};
    m_count = 0;
    m_error.clear();
    write(headerLine(QDateTime::currentDateTimeUtc()));
    return m_error;
}

void RecordingWriter::watch(RemoteDBusInvokerService *link)
{
    connect(link, &RemoteDBusInvokerService::requestSent, this, [this](const QString &request) {
        QStringView arguments;
        const ServiceMethod *method = findMethod(request, &arguments);
        if (!method)
            return;
        add(Clock::now(), *method, request, request.size() - arguments.size());
    });
}

void RecordingWriter::add(Clock::time_point time, const ServiceMethod &method, const QString &text,
                          qsizetype begin)
{
    // each time is rounded, not each difference, so that errors do not add up
    const auto since = std::chrono::duration_cast<std::chrono::microseconds>(time - m_start);
    const auto after = since - m_lastTime;
    m_lastTime = since;
    ++m_count;
    m_thread.start([this, after, &method, text, begin] {
        write(callLine(after, method, QStringView(text).sliced(begin)));
    });
}

RecordingWriter::Saved RecordingWriter::save(const QString &path,
                                             const std::vector<LoggedCall> &calls,
                                             const CallLog &log, QString *error)
{
    Saved saved;
    QSaveFile file(path); // an older file stays if this one cannot be written
    if (file.open(QIODevice::WriteOnly) && !calls.empty()) {
        const auto start = calls.front().time;
        file.write(headerLine(log.wallTime(start)));
        std::chrono::microseconds last{};
        for (const LoggedCall &call : calls) {
            if (!call.method || call.omitted > 0 || call.outcome == LoggedCall::Outcome::Dropped) {
                ++saved.leftOut;
                continue;
            }
            const auto time
                = std::chrono::duration_cast<std::chrono::microseconds>(call.time - start);
            file.write(callLine(time - last, *call.method, call.arguments));
            last = time;
            ++saved.calls;
        }
    }
    if (!file.commit())
        *error = file.errorString();
    return saved;
}

void RecordingWriter::write(const Recording &recording, QIODevice &device)
{
    device.write(headerLine(recording.start()));
    std::chrono::microseconds last{};
    for (const RecordedCall &call : recording.calls()) {
        device.write(callLine(call.time - last, *call.method, call.arguments));
        last = call.time;
    }
}

void RecordingWriter::write(const QByteArray &line)
{
    if (!m_error.isEmpty())
        return;
    // A full disk takes a part of the line. Only the next attempt names the error.
    for (qint64 written = 0; written < line.size();) {
        const qint64 size = m_file.write(line.constData() + written, line.size() - written);
        if (size <= 0) {
            m_error = m_file.errorString();
            Q_EMIT failed();
            return;
        }
        written += size;
    }
}

QString RecordingWriter::close()
{
    m_thread.waitForDone();
    m_file.close();
    if (m_error.isEmpty() && !m_file.exists())
        m_error = qt_error_string(ENOENT); // removed meanwhile
    return m_error;
}

} // namespace EmulationManagement::Internal
