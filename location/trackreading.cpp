#include "trackreading.h"

#include <algorithm>
#include <type_traits>
#include <utility>

namespace EmulationManagement::Internal {

TrackReading::TrackReading(QString text, int maximumPoints, std::function<bool(double)> setProgress)
    : m_text(std::move(text))
    , m_maximumPoints(maximumPoints)
    , m_setProgress(std::move(setProgress))
{}

bool TrackReading::append(const QByteArray &packedPoints, double end)
{
    // Each point is packed as its members, in their order.
    static_assert(std::is_trivially_copyable_v<TrackPoint>
                  && sizeof(TrackPoint) == 5 * sizeof(double));
    const qsizetype count = packedPoints.size() / qsizetype(sizeof(TrackPoint));
    const qsizetype before = m_points.size();
    m_points.resize(before + count);
    std::copy_n(packedPoints.constData(), packedPoints.size(),
                reinterpret_cast<char *>(m_points.data() + before));
    return m_setProgress(end / double(m_text.size()));
}

void TrackReading::fail(const QString &message, int line)
{
    m_failed = true;
    m_errorMessage = message;
    m_errorLine = line;
}

QList<TrackPoint> TrackReading::takePoints()
{
    m_points.squeeze();
    return std::exchange(m_points, {});
}

} // namespace EmulationManagement::Internal
