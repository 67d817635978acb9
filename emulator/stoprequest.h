#pragma once

#include <QObject>
#include <QSocketNotifier>

namespace NimbraEmulator {

/// Tells when the emulator is asked to end: by SIGTERM or SIGINT, or by the end of standard input.
/// Only one object may exist at a time, because signals belong to the whole process.
class StopRequest : public QObject
{
    Q_OBJECT

public:
    explicit StopRequest(QObject *parent = nullptr);
    ~StopRequest() override;

    /// Also takes the end of standard input as a request from now on.
    void watchStandardInput();

Q_SIGNALS:
    void requested();

private:
    QSocketNotifier m_signalNotifier;
    QSocketNotifier m_inputNotifier;
};

} // namespace NimbraEmulator
