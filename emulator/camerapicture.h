#pragma once

#include <QFrame>

namespace NimbraEmulator {

class VideoReceiver;

/// Shows the camera's picture as large as it fits, with its size and rate below.
class CameraPicture : public QFrame
{
    Q_OBJECT

public:
    /// The receiver outlives the widget.
    explicit CameraPicture(const VideoReceiver &receiver, QWidget *parent = nullptr);

    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    const VideoReceiver &m_receiver;
};

} // namespace NimbraEmulator
