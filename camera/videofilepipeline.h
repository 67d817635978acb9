#pragma once

#include "streampipeline.h"

#include <QElapsedTimer>
#include <QObject>
#include <QString>
#include <QTimer>

/// Streams a local video file. See firstVideoStream() for which files it can play.
class VideoFilePipeline : public QObject, public StreamPipeline
{
    Q_OBJECT

public:
    explicit VideoFilePipeline(QObject *parent = nullptr);
    ~VideoFilePipeline() override;

    /// Sets the file for the next play(). The pipeline must be stopped.
    void setFile(const QString &path);
    /// Plays the file from its start. Sends nothing if there is no such file.
    void play() override;
    void stop() override;
    /// Plays the file again. Waits a little if it ended at once because it has no pictures.
    void restart();

Q_SIGNALS:
    /// The file came to its end. Emitted on one of GStreamer's threads, which must not call stop().
    void ended();

private:
    ObjectReference<GstElement> m_fileSource;
    QString m_path;
    QElapsedTimer m_sincePlay;
    QTimer m_restartTimer;
};
