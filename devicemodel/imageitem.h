#pragma once

#include <QImage>
#include <QQuickItem>
#include <QtQmlIntegration>

namespace EmulationManagement::Internal {

/// Shows an image that is not in a file. Its own size follows the image.
class ImageItem : public QQuickItem
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QImage image READ image WRITE setImage NOTIFY imageChanged)

public:
    explicit ImageItem(QQuickItem *parent = nullptr);

    [[nodiscard]] QImage image() const { return m_image; }
    void setImage(const QImage &image);

Q_SIGNALS:
    void imageChanged();

protected:
    QSGNode *updatePaintNode(QSGNode *node, UpdatePaintNodeData *data) override;

private:
    QImage m_image;
};

} // namespace EmulationManagement::Internal
