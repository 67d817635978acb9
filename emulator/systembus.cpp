#include "systembus.h"

#include <QFile>
#include <QUrl>

namespace NimbraEmulator {

using namespace Qt::StringLiterals;

// A track of many thousand points is one message, so messages may be as long as the protocol
// allows: 128 MiB.
static constexpr auto configuration = R"(<!DOCTYPE busconfig PUBLIC
 "-//freedesktop//DTD D-Bus Bus Configuration 1.0//EN"
 "http://www.freedesktop.org/standards/dbus/1.0/busconfig.dtd">
<busconfig>
  <listen>unix:path=%1</listen>
  <auth>EXTERNAL</auth>
  <policy context="default">
    <allow own_prefix="org.vexa"/>
    <allow send_destination="*"/>
    <allow receive_sender="*"/>
  </policy>
  <limit name="max_message_size">134217728</limit>
  <limit name="max_incoming_bytes">1000000000</limit>
  <limit name="max_outgoing_bytes">1000000000</limit>
  <limit name="max_replies_per_connection">50000</limit>
</busconfig>
)"_L1;

SystemBus::SystemBus(QObject *parent)
    : QObject(parent)
{}

bool SystemBus::start(QString *error)
{
    QFile file(m_folder.filePath(u"bus.conf"_s));
    // D-Bus addresses are percent-encoded, so the path has no character that is special in XML.
    const QByteArray socket = QUrl::toPercentEncoding(m_folder.filePath(u"bus"_s), "/", "~");
    if (!m_folder.isValid() || !file.open(QIODevice::WriteOnly)
        || file.write(configuration.arg(QLatin1StringView(socket)).toUtf8()) < 0) {
        *error = u"The D-Bus daemon's folder %1 cannot be written."_s.arg(m_folder.path());
        return false;
    }
    file.close();

    m_daemon.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    m_daemon.start(u"dbus-daemon"_s, {u"--config-file"_s, file.fileName(), u"--nofork"_s,
                                      u"--nopidfile"_s, u"--nosyslog"_s, u"--print-address=1"_s});
    m_address = QString::fromUtf8(m_daemon.waitForOutput(QProcess::StandardOutput, "\n")).trimmed();
    if (m_address.isEmpty()) {
        *error = m_daemon.error() == QProcess::FailedToStart
                     ? u"The program dbus-daemon was not found."_s
                     : u"The D-Bus daemon did not start."_s;
        return false;
    }
    connect(&m_daemon, &ChildProcess::died, this, &SystemBus::died);
    return true;
}

QDBusConnection SystemBus::connection(const QString &name) const
{
    return QDBusConnection::connectToBus(m_address, name);
}

} // namespace NimbraEmulator
