#pragma once

#include <link/recordingwriter.h>

#include <QToolButton>

#include <memory>

namespace EmulationManagement::Internal {

class RemoteDBusInvokerService;

/// Begins and ends a recording of what is sent.
class RecordButton : public QToolButton
{
    Q_OBJECT

public:
    /// \a link must outlive the button.
    explicit RecordButton(RemoteDBusInvokerService *link, QWidget *parent = nullptr);

    /// Records a call of the camera, which is not sent over the link.
    void addCameraCall(const ServiceMethod &method, const QString &arguments);

private:
    void toggle();
    void begin(const QString &path);
    void end();
    void showState();

    RemoteDBusInvokerService *m_link;
    std::unique_ptr<RecordingWriter> m_writer; // while recording
    QString m_path;
};

} // namespace EmulationManagement::Internal
