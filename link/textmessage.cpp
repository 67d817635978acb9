#include "textmessage.h"

#include <QIODevice>
#include <QRandomGenerator>
#include <QtEndian>

#include <algorithm>
#include <array>
#include <limits>
#include <utility>

namespace EmulationManagement::Internal {

// Parts of a frame's header, see RFC 6455, section 5.2.
static constexpr int continuationOpcode = 0x0;
static constexpr int textOpcode = 0x1;
static constexpr int lastFrame = 0x80;
static constexpr int masked = 0x80; // as each frame of a client
static constexpr int length16 = 126;
static constexpr int length64 = 127;

template<typename Number>
static void appendBigEndian(QByteArray &bytes, Number number)
{
    const Number bigEndian = qToBigEndian(number);
    bytes.append(reinterpret_cast<const char *>(&bigEndian), sizeof bigEndian);
}

static QByteArray header(int firstByte, qsizetype length)
{
    QByteArray header(1, char(firstByte));
    if (length < length16) {
        header += char(masked | int(length));
    } else if (length <= std::numeric_limits<quint16>::max()) {
        header += char(masked | length16);
        appendBigEndian(header, quint16(length));
    } else {
        header += char(masked | length64);
        appendBigEndian(header, quint64(length));
    }
    return header;
}

TextMessage::TextMessage(QString text)
    : m_text(std::move(text))
{}

void TextMessage::writeFrame(QIODevice &socket)
{
    QByteArray payload = m_encoder(
        QStringView(m_text).sliced(m_next).first(std::min(frameLength, m_text.size() - m_next)));
    const int opcode = m_begun ? continuationOpcode : textOpcode;
    m_begun = true;
    m_next += frameLength;
    QByteArray frame = header(opcode | (isWritten() ? lastFrame : 0), payload.size());
    const quint32 key = QRandomGenerator::global()->generate();
    appendBigEndian(frame, key);
    const std::array mask{char(key >> 24), char(key >> 16), char(key >> 8), char(key)};
    char *bytes = payload.data();
    for (qsizetype i = 0; i < payload.size(); ++i)
        bytes[i] ^= mask[std::size_t(i) % mask.size()];
    socket.write(frame);
    socket.write(payload);
}

} // namespace EmulationManagement::Internal
