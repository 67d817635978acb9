#include "imageitem.h"

#include <QQuickWindow>
#include <QSGImageNode>

#include <memory>

namespace EmulationManagement::Internal {

ImageItem::ImageItem(QQuickItem *parent)
    : QQuickItem(parent)
{
    setFlag(ItemHasContents);
}

void ImageItem::setImage(const QImage &image)
{
    m_image = image;
    setSize(image.size());
    update();
    Q_EMIT imageChanged();
}

QSGNode *ImageItem::updatePaintNode(QSGNode *node, UpdatePaintNodeData *data)
{
    Q_UNUSED(data)
    std::unique_ptr<QSGNode> old(node);
    if (m_image.isNull())
        return nullptr;
    auto *imageNode = window()->createImageNode();
    imageNode->setOwnsTexture(true);
    imageNode->setTexture(window()->createTextureFromImage(m_image));
    imageNode->setFiltering(QSGTexture::Linear);
    imageNode->setRect(boundingRect());
    return imageNode;
}

} // namespace EmulationManagement::Internal
