#include "calltexts.h"

#include "methodarguments.h"

#include <QJsonDocument>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace EmulationManagement::Internal {

using Outcome = LoggedCall::Outcome;

static QString serviceName(const LoggedCall &call)
{
    return call.method ? QString(call.method->service->name) : QString();
}

static QString methodName(const LoggedCall &call)
{
    return call.method ? QString(call.method->name) : QString();
}

QString CallTexts::time(const CallLog &log, const LoggedCall &call)
{
    return log.wallTime(call.time).toString(u"HH:mm:ss.zzz");
}

QString CallTexts::arguments(const LoggedCall &call)
{
    static constexpr qsizetype shown = 200; // characters of a shortened text
    if (call.omitted > 0) {
        return tr("%1… (%2 characters, which the log does not keep)")
            .arg(call.arguments.first(shown),
                 QString::number(call.arguments.size() + call.omitted));
    }
    return call.method ? MethodArguments::description(*call.method, call.arguments)
                       : call.arguments;
}

QString CallTexts::reply(const LoggedCall &call)
{
    switch (call.outcome) {
    case Outcome::Waiting:
    case Outcome::Noted:
        return {};
    case Outcome::Lost:
        return tr("lost with the connection");
    case Outcome::Dropped:
        return tr("not sent, because the link was down");
    case Outcome::Refused:
        return call.reply;
    case Outcome::Answered:
        break;
    }
    return call.reply.isEmpty() ? tr("done") : call.reply;
}

QString CallTexts::latency(const LoggedCall &call)
{
    if (call.outcome != Outcome::Answered && call.outcome != Outcome::Refused)
        return {};
    return QString::number(std::chrono::duration<double, std::milli>(call.latency).count(), 'f', 2);
}

QString CallTexts::line(const CallLog &log, const LoggedCall &call)
{
    return QStringList{time(log, call), serviceName(call), methodName(call),
                       arguments(call), reply(call),       latency(call)}
        .join(u'\t');
}

static QString csvField(QString text)
{
    static const QRegularExpression special(u"[\",\r\n]"_s);
    return text.contains(special) ? u'"' + text.replace(u'"', u"\"\""_s) + u'"' : text;
}

QString CallTexts::csvHeader()
{
    return u"time,service,method,arguments,reply,milliseconds"_s;
}

QString CallTexts::csvLine(const CallLog &log, const LoggedCall &call)
{
    const QString values
        = call.method && call.omitted == 0
              ? QString::fromUtf8(
                    QJsonDocument(MethodArguments::toJson(*call.method, call.arguments))
                        .toJson(QJsonDocument::Compact))
              : arguments(call);
    QStringList fields{log.wallTime(call.time).toUTC().toString(Qt::ISODateWithMs),
                       serviceName(call),
                       methodName(call),
                       values,
                       reply(call),
                       latency(call)};
    for (QString &field : fields)
        field = csvField(field);
    return fields.join(u',');
}

static QString shellQuoted(const QString &text)
{
    static const QRegularExpression plain(uR"(\A[\w./:@%+=-]+\z)"_s);
    if (plain.match(text).hasMatch())
        return text;
    return u'\'' + QString(text).replace(u'\'', uR"('\'')"_s) + u'\'';
}

static QString cameraCommand(const LoggedCall &call, const QJsonArray &values)
{
    if (call.method->name == "startVideo"_L1)
        return u"emulationctl video "_s + shellQuoted(values.at(0).toString());
    if (call.method->name != "startCamera"_L1)
        return {};
    QString command = u"emulationctl camera start "_s + shellQuoted(values.at(0).toString());
    if (values.size() > 2)
        command += u" --size %1x%2"_s.arg(values.at(1).toInt()).arg(values.at(2).toInt());
    if (values.size() > 3)
        command += u" --rate "_s + shellQuoted(values.at(3).toString());
    return command;
}

QString CallTexts::command(const LoggedCall &call)
{
    if (!call.method || call.omitted > 0)
        return {};
    const QJsonArray values = MethodArguments::toJson(*call.method, call.arguments);
    if (call.method->service == &cameraService)
        return cameraCommand(call, values);
    QString command = u"emulationctl call %1 %2"_s.arg(serviceName(call), methodName(call));
    for (const auto &value : values) {
        const QString text
            = value.isString()
                  ? value.toString()
                  : QString::fromUtf8(
                        QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact))
                        .sliced(1)
                        .chopped(1);
        command += u' ' + shellQuoted(text);
    }
    return command;
}

} // namespace EmulationManagement::Internal
