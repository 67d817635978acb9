#include "faults.h"

#include <plugindriver.h>

#include <coreplugin/icore.h>

#include <extensionsystem/pluginmanager.h>

#include <utils/filepath.h>
#include <utils/qtcsettings.h>

#include <QDir>
#include <QFile>
#include <QTcpServer>
#include <QTcpSocket>
#include <QUdpSocket>

#include <csignal>

#include <sys/resource.h>
#include <sys/stat.h>

using namespace Qt::StringLiterals;

static constexpr quint16 udpPort = 34343;

/// Limits the files that the IDE and the programs that it starts can write.
static void limitFileSize(rlim_t size)
{
    rlimit limit{};
    getrlimit(RLIMIT_FSIZE, &limit);
    limit.rlim_cur = std::min(size, limit.rlim_max);
    setrlimit(RLIMIT_FSIZE, &limit);
}

/// Takes a port. Its TCP clients get a megabyte of nonsense, or are dropped, or get no answer.
static std::unique_ptr<QObject> takePort(quint16 port, int manner)
{
    if (port == udpPort) {
        auto socket = std::make_unique<QUdpSocket>();
        socket->bind(QHostAddress::LocalHost, port);
        return socket;
    }
    auto server = std::make_unique<QTcpServer>();
    QObject::connect(server.get(), &QTcpServer::newConnection, [manner, server = server.get()] {
        while (QTcpSocket *client = server->nextPendingConnection()) {
            QObject::connect(client, &QTcpSocket::disconnected, client, &QObject::deleteLater);
            if (manner == 0)
                client->write(QByteArray(1 << 20, 'x'));
            else if (manner == 1)
                client->disconnectFromHost();
        }
    });
    server->listen(QHostAddress::LocalHost, port);
    return server;
}

Faults::Faults(QRandomGenerator &random)
    : m_random(random)
{
    std::signal(SIGXFSZ, SIG_IGN);
    if (!QFile::copy(MEDIA_FOLDER "/vp8.webm", videoFile()))
        qFatal("The video cannot be copied");
}

QString Faults::videoFile() const
{
    return m_folder.filePath("video.webm");
}

RandomAction Faults::next()
{
    switch (m_random.bounded(8)) {
    case 0:
        return takeOrFreePort();
    case 1:
        return {m_diskFull ? u"Free the disk"_s : u"Fill the disk"_s,
                [this] { setDiskFull(!m_diskFull); }};
    case 2:
        return {m_settingsLocked ? u"Unlock the settings"_s : u"Lock the settings"_s,
                [this] { setSettingsLocked(!m_settingsLocked); }};
    case 3:
        return replaceVideo();
    case 4:
        return plugCameras();
    default:
        return breakEmulator();
    }
}

RandomAction Faults::breakEmulator()
{
    static constexpr const char *requests[] = {
        "freeze 100",
        "freeze 3000",
        "relay close",
        "relay open",
        "relay open",
        "relay delay 0",
        "relay delay 700",
        "relay answer ",
        "relay answer :::::::::",
        "relay answer <img src='http://127.0.0.1:5454/x.png'>",
        "relay answer enabled:|||tap|als:1::",
        "relay answer x:y:z:org.vexa.Error:<b>text</b>",
        "relay repeat 64000000 x",
        "relay repeat 64000000 :",
        "relay repeat 70000000 x",
        "relay repeat 8000000 <b>line\\</b>",
        "fail stopTrack org.vexa.Error.Broken It is broken",
        "fail stopTrack",
        "fail setAlsValue org.vexa.Error.Broken",
        "fail setAlsValue",
        "service without org.vexa.GeoclueEmulationManagement",
        "service with org.vexa.GeoclueEmulationManagement",
        "service without org.vexa.SensorfwEmulationManagement",
        "service with org.vexa.SensorfwEmulationManagement",
        "package without geoclue-emulator",
        "package with geoclue-emulator",
        "package with geoclue-emulator",
    };
    // an emulator is killed seldom, because one that lives for a while meets more faults
    const auto request
        = QString::fromLatin1(m_random.bounded(84) == 0 ? "kill" : oneOf(requests, m_random));
    return {request, [request] { PluginDriver::requestFault(request); }};
}

RandomAction Faults::takeOrFreePort()
{
    if (m_port)
        return {"Free the port", [this] { m_port.reset(); }};
    static constexpr quint16 ports[] = {5454, 2223, udpPort};
    const quint16 port = oneOf(ports, m_random);
    const int manner = m_random.bounded(3);
    return {u"Take port %1"_s.arg(port), [=, this] { m_port = takePort(port, manner); }};
}

RandomAction Faults::replaceVideo()
{
    const int manner = m_random.bounded(5);
    return {u"Replace the file of the stream, %1"_s.arg(manner), [path = videoFile(), manner] {
                if (manner == 0) {
                    QFile::resize(path, 10'000);
                    return;
                }
                QFile::remove(path);
                if (manner == 1)
                    QFile::copy(MEDIA_FOLDER "/vp8.webm", path);
                else if (manner == 2)
                    QFile::copy(MEDIA_FOLDER "/motion-jpeg.mkv", path);
                else if (manner == 3)
                    mkfifo(path.toLocal8Bit(), S_IRUSR | S_IWUSR);
            }};
}

RandomAction Faults::plugCameras()
{
    static const QByteArray cameras[] = {
        "A & <img src=x> | device=/dev/a | video/x-raw,width=64,height=48,framerate=30/1",
        "Ranges | device=/dev/b | "
        "video/x-raw,width=[1,9999],height=48,framerate=[0/1,2147483647/1]",
        "Nothing | | video/x-raw",
    };
    const QByteArrayList plugged
        = m_random.bounded(4) == 0
              ? QByteArrayList()
              : QByteArrayList{oneOf(cameras, m_random), oneOf(cameras, m_random)};
    return {"Plug cameras", [this, plugged] {
                limitFileSize(RLIM_INFINITY); // the cameras' file must stay writable
                m_cameras.set(plugged);
                setDiskFull(m_diskFull);
            }};
}

void Faults::setDiskFull(bool full)
{
    m_diskFull = full;
    limitFileSize(full ? 0 : RLIM_INFINITY);
}

// Puts folders in the place of the files, because root may write to locked files.
void Faults::setSettingsLocked(bool locked)
{
    if (locked == m_settingsLocked)
        return;
    m_settingsLocked = locked;
    const QString files[] = {ExtensionSystem::PluginManager::settings()->fileName(),
                             Core::ICore::userResourcePath("nimbra-sdk.ini").toFSPathString()};
    for (const QString &file : files) {
        const QString aside = file + ".aside";
        if (locked) {
            QFile::rename(file, aside);
            QDir().mkpath(file + "/in-the-way");
        } else {
            QDir(file).removeRecursively();
            QFile::rename(aside, file);
        }
    }
}

void Faults::end()
{
    setDiskFull(false);
    setSettingsLocked(false);
    m_port.reset();
}
