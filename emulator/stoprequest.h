#pragma once

#include <QObject>
#include <QSocketNotifier>

namespace NimbraEmulator {

/// Tells when the emulator is asked to end: by SIGTERM or SIGINT, or by the end of standard input.
/// There may be one such object at a time, as signals belong to the whole process.
class StopRequest : public QObject
{
    Q_OBJECT

public:
    explicit StopRequest(QObject *parent = nullptr);
    ~StopRequest() override;

    /// From now on the end of standard input is such a request, too.
    void watchStandardInput();

Q_SIGNALS:
    void requested();

private:
    QSocketNotifier m_signalNotifier;
    QSocketNotifier m_inputNotifier;
};

} // namespace NimbraEmulator
