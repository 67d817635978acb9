#pragma once

#include <QObject>
#include <QString>
#include <QTimer>
#include <QtQmlIntegration>

#include <chrono>

class StreamPipeline;

/// Shows the user some of the pictures that a pipeline sends, as they are sent.
class StreamPreview : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("cameraEmulationManager has the only instance")
    Q_PROPERTY(bool shown READ isShown WRITE setShown NOTIFY shownChanged)
    Q_PROPERTY(int interval READ interval WRITE setInterval NOTIFY intervalChanged)
    Q_PROPERTY(QString picture READ picture NOTIFY pictureChanged)

public:
    /// Each picture of the preview costs more processor time than sending one.
    static constexpr std::chrono::milliseconds shortestInterval{200};

    explicit StreamPreview(QObject *parent = nullptr);

    /// Takes pictures of \a pipeline, which must exist until stop(), while the preview is shown.
    void start(StreamPipeline *pipeline);
    void stop();

    [[nodiscard]] bool isShown() const { return m_shown; }
    /// A preview that is not shown costs nothing.
    void setShown(bool shown);
    /// The time between two pictures, in milliseconds, at least shortestInterval.
    [[nodiscard]] int interval() const { return m_timer.interval(); }
    void setInterval(int interval);
    /// The URL of a JPEG picture, which holds the picture itself (RFC 2397). Empty before the
    /// stream's first picture and without a stream.
    [[nodiscard]] const QString &picture() const { return m_picture; }

Q_SIGNALS:
    void shownChanged();
    void intervalChanged();
    void pictureChanged();

private:
    void update();
    void takePicture();
    void setPicture(const QString &picture);

    StreamPipeline *m_pipeline = nullptr;
    QTimer m_timer;
    bool m_shown = false;
    QString m_picture;
};
