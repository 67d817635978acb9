#include "camerapicture.h"

#include "videoreceiver.h"

#include <QPainter>

namespace NimbraEmulator {

static constexpr QSize smallestPicture(320, 240);

CameraPicture::CameraPicture(const VideoReceiver &receiver, QWidget *parent)
    : QFrame(parent)
    , m_receiver(receiver)
{
    setFrameShape(QFrame::StyledPanel);
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::Base);
    setForegroundRole(QPalette::Text);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    connect(&m_receiver, &VideoReceiver::changed, this, qOverload<>(&QWidget::update));
}

QSize CameraPicture::minimumSizeHint() const
{
    return smallestPicture;
}

void CameraPicture::paintEvent(QPaintEvent *event)
{
    QFrame::paintEvent(event);
    QPainter painter(this);
    const QImage &picture = m_receiver.picture();
    if (picture.isNull()) {
        painter.drawText(contentsRect(), Qt::AlignCenter, tr("No picture"));
        return;
    }
    QRect area = contentsRect();
    const QRect caption = area;
    area.setHeight(area.height() - fontMetrics().height());
    QRect target({}, picture.size().scaled(area.size(), Qt::KeepAspectRatio));
    target.moveCenter(area.center());
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(target, picture);
    painter.drawText(caption, Qt::AlignHCenter | Qt::AlignBottom,
                     tr("%1 × %2, %3 pictures a second")
                         .arg(picture.width())
                         .arg(picture.height())
                         .arg(m_receiver.rate(), 0, 'f', 1));
}

} // namespace NimbraEmulator
