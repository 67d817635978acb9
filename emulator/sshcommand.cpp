#include "sshcommand.h"

#include <QDataStream>
#include <QLocalSocket>

#include <chrono>
#include <cstdio>
#include <cstdlib>

namespace NimbraEmulator {

using namespace std::chrono_literals;

static constexpr std::chrono::milliseconds answerTimeout = 10s;

SshCommandServer::SshCommandServer(Shell shell, QObject *parent)
    : QObject(parent)
    , m_shell(std::move(shell))
{
    m_server.setSocketOptions(QLocalServer::UserAccessOption);
    connect(&m_server, &QLocalServer::newConnection, this, &SshCommandServer::acceptCommand);
}

void SshCommandServer::acceptCommand()
{
    while (QLocalSocket *socket = m_server.nextPendingConnection()) {
        connect(socket, &QLocalSocket::disconnected, socket, &QObject::deleteLater);
        connect(socket, &QLocalSocket::readyRead, this, [this, socket] {
            QDataStream stream(socket);
            QString command;
            stream.startTransaction();
            stream >> command;
            if (!stream.commitTransaction())
                return;
            const Answer answer = m_shell(command);
            stream << answer.output << answer.error << qint32(answer.exitStatus);
        });
    }
}

int runSshCommand(const QString &socketPath)
{
    QLocalSocket socket;
    socket.connectToServer(socketPath);
    QDataStream stream(&socket);
    stream << qEnvironmentVariable("SSH_ORIGINAL_COMMAND");

    QByteArray output;
    QByteArray error;
    qint32 exitStatus = EXIT_FAILURE;
    do {
        if (!socket.waitForReadyRead(static_cast<int>(answerTimeout.count()))) {
            std::fputs("The emulator does not answer.\n", stderr);
            return EXIT_FAILURE;
        }
        stream.startTransaction();
        stream >> output >> error >> exitStatus;
    } while (!stream.commitTransaction());

    std::fwrite(output.constData(), 1, static_cast<size_t>(output.size()), stdout);
    std::fwrite(error.constData(), 1, static_cast<size_t>(error.size()), stderr);
    return exitStatus;
}

} // namespace NimbraEmulator
