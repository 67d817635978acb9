#include "childprocess.h"

#include <QDeadlineTimer>

#include <chrono>
#include <csignal>

#include <sys/prctl.h>
#include <unistd.h>

namespace NimbraEmulator {

using namespace std::chrono_literals;

static constexpr std::chrono::milliseconds startTimeout = 10s;
static constexpr std::chrono::milliseconds stopTimeout = 3s;

ChildProcess::ChildProcess(QObject *parent)
    : QProcess(parent)
{
    setStandardInputFile(nullDevice());
    setChildProcessModifier([emulator = ::getpid()] {
        ::prctl(PR_SET_PDEATHSIG, SIGKILL);
        if (::getppid() != emulator) // the emulator died before prctl()
            ::_exit(EXIT_FAILURE);
    });
    connect(this, &QProcess::finished, this, [this] {
        if (!m_stopping)
            Q_EMIT died();
    });
}

ChildProcess::~ChildProcess()
{
    stop();
}

void ChildProcess::stop()
{
    if (state() == NotRunning)
        return;
    m_stopping = true;
    terminate();
    if (!waitForFinished(static_cast<int>(stopTimeout.count()))) {
        kill();
        waitForFinished(static_cast<int>(stopTimeout.count()));
    }
}

QByteArray ChildProcess::waitForOutput(ProcessChannel channel, QByteArrayView text)
{
    setReadChannel(channel);
    const QDeadlineTimer deadline(startTimeout);
    while (!peek(bytesAvailable()).contains(text)) {
        if (!waitForReadyRead(static_cast<int>(deadline.remainingTime())))
            return {};
    }
    return readAll();
}

} // namespace NimbraEmulator
