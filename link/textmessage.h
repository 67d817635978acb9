#pragma once

#include <QString>
#include <QStringConverter>

class QIODevice;

namespace EmulationManagement::Internal {

/*!
 * A text message to a WebSocket server that is written frame by frame (RFC 6455, section 5.4).
 *
 * QWebSocket writes all frames of a message at once, which takes a tenth of a second for a track of
 * a million points. Between the frames of a message, the peer accepts only control frames.
 */
class TextMessage
{
public:
    /// Characters of the text in one frame, which is written in less than a millisecond.
    static constexpr qsizetype frameLength = 1 << 17;

    explicit TextMessage(QString text);

    [[nodiscard]] const QString &text() const { return m_text; }
    /// Whether a frame was written.
    [[nodiscard]] bool isBegun() const { return m_begun; }
    [[nodiscard]] bool isWritten() const { return m_begun && m_next >= m_text.size(); }
    /// Writes the next frame to the socket of an open WebSocket.
    void writeFrame(QIODevice &socket);

private:
    QString m_text;
    QStringEncoder m_encoder{QStringEncoder::Utf8}; // a character may begin in one frame
    qsizetype m_next = 0;
    bool m_begun = false;
};

} // namespace EmulationManagement::Internal
