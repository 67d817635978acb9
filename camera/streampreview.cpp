#include "streampreview.h"

#include "streampipeline.h"

#include <QByteArray>

#include <algorithm>

using namespace Qt::StringLiterals;

StreamPreview::StreamPreview(QObject *parent)
    : QObject(parent)
{
    m_timer.setInterval(shortestInterval);
    connect(&m_timer, &QTimer::timeout, this, &StreamPreview::takePicture);
}

void StreamPreview::start(StreamPipeline *pipeline)
{
    stop();
    m_pipeline = pipeline;
    update();
}

void StreamPreview::stop()
{
    m_pipeline = nullptr;
    update();
    setPicture({});
}

void StreamPreview::setShown(bool shown)
{
    m_shown = shown;
    update();
    Q_EMIT shownChanged();
}

void StreamPreview::setInterval(int interval)
{
    interval = std::max(interval, int(shortestInterval.count()));
    if (interval == m_timer.interval())
        return;
    m_timer.setInterval(interval);
    Q_EMIT intervalChanged();
}

void StreamPreview::update()
{
    if (m_shown && m_pipeline) {
        static_cast<void>(m_pipeline->takePicture()); // an old one
        m_timer.start(shortestInterval); // the first picture comes at once
    } else {
        m_timer.stop();
    }
}

void StreamPreview::takePicture()
{
    const QByteArray jpeg = m_pipeline->takePicture();
    if (!jpeg.isEmpty())
        setPicture("data:image/jpeg;base64,"_L1 + QLatin1StringView(jpeg.toBase64()));
}

void StreamPreview::setPicture(const QString &picture)
{
    if (picture == m_picture)
        return;
    m_picture = picture;
    Q_EMIT pictureChanged();
}
