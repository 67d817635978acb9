#include "calllogmodel.h"

#include <link/calllog.h>
#include <link/calltexts.h>

#include <utils/theme/theme.h>

#include <QColor>

#include <algorithm>

namespace EmulationManagement::Internal {

using Outcome = LoggedCall::Outcome;

CallLogModel::CallLogModel(CallLog *log, QObject *parent)
    : QAbstractTableModel(parent)
    , m_log(log)
{
    m_timer.setSingleShot(true);
    m_timer.setInterval(batchInterval);
    connect(&m_timer, &QTimer::timeout, this, &CallLogModel::follow);
    connect(log, &CallLog::cleared, this, &CallLogModel::follow);
}

void CallLogModel::setFollowing(bool following)
{
    if (following == m_following)
        return;
    m_following = following;
    if (following) {
        connect(m_log, &CallLog::added, this, &CallLogModel::schedule);
        connect(m_log, &CallLog::finished, this, &CallLogModel::noteFinished);
        beginResetModel();
        m_begin = m_log->begin();
        m_end = m_log->end();
        endResetModel();
        Q_EMIT followed();
    } else {
        disconnect(m_log, &CallLog::added, this, &CallLogModel::schedule);
        disconnect(m_log, &CallLog::finished, this, &CallLogModel::noteFinished);
        m_timer.stop();
    }
}

void CallLogModel::setRecordingPlays(bool plays)
{
    m_timer.setInterval(plays ? batchIntervalOfRecording : batchInterval);
}

void CallLogModel::useGap()
{
    if (!m_timer.isActive()
        || m_timer.intervalAsDuration() - m_timer.remainingTimeAsDuration() < batchInterval)
        return;
    m_timer.stop();
    follow();
}

void CallLogModel::schedule()
{
    if (!m_timer.isActive())
        m_timer.start();
}

void CallLogModel::noteFinished(qint64 serial)
{
    const bool hasChanges = m_firstChanged < m_lastChanged;
    m_firstChanged = hasChanges ? std::min(m_firstChanged, serial) : serial;
    m_lastChanged = hasChanges ? std::max(m_lastChanged, serial + 1) : serial + 1;
    schedule();
}

void CallLogModel::follow()
{
    const qint64 begin = m_log->begin();
    const qint64 end = m_log->end();
    const qint64 removed = std::min(begin, m_end) - m_begin;
    if (removed > 0) {
        beginRemoveRows({}, 0, int(removed - 1));
        m_begin += removed;
        endRemoveRows();
    }
    if (m_begin == m_end)
        m_begin = m_end = begin; // all rows are gone
    if (end > m_end) {
        beginInsertRows({}, int(m_end - m_begin), int(end - m_begin - 1));
        m_end = end;
        endInsertRows();
    }
    const qint64 firstChanged = std::max(m_firstChanged, m_begin);
    if (firstChanged < m_lastChanged) {
        Q_EMIT dataChanged(index(int(firstChanged - m_begin), 0),
                           index(int(m_lastChanged - 1 - m_begin), ColumnCount - 1));
    }
    m_firstChanged = m_lastChanged = 0;
    Q_EMIT followed();
}

const LoggedCall *CallLogModel::callAt(int row) const
{
    const qint64 serial = m_begin + row;
    return serial >= m_log->begin() && serial < m_log->end() ? &m_log->at(serial) : nullptr;
}

int CallLogModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_end - m_begin);
}

int CallLogModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

static bool hasFailed(const LoggedCall &call)
{
    return call.outcome == Outcome::Refused || call.outcome == Outcome::Lost
           || call.outcome == Outcome::Dropped;
}

static QString text(const CallLog &log, const LoggedCall &call, int column)
{
    switch (column) {
    case CallLogModel::Time:
        return CallTexts::time(log, call);
    case CallLogModel::Service:
        return call.method ? QString(call.method->service->name) : QString();
    case CallLogModel::Method:
        return call.method ? QString(call.method->name) : QString();
    case CallLogModel::Arguments:
        return CallTexts::arguments(call);
    case CallLogModel::Reply:
        return CallTexts::reply(call);
    default:
        return CallTexts::latency(call);
    }
}

QVariant CallLogModel::data(const QModelIndex &index, int role) const
{
    const LoggedCall *call = callAt(index.row());
    if (!call)
        return {};
    switch (role) {
    case Qt::DisplayRole:
        return text(*m_log, *call, index.column());
    case Qt::ToolTipRole:
        return index.column() == Arguments || index.column() == Reply
                   ? text(*m_log, *call, index.column())
                   : QVariant();
    case Qt::ForegroundRole:
        return hasFailed(*call)
                   ? Utils::creatorColor(Utils::Theme::OutputPanes_ErrorMessageTextColor)
                   : QVariant();
    case Qt::TextAlignmentRole:
        return index.column() == Latency ? QVariant(Qt::AlignRight | Qt::AlignVCenter) : QVariant();
    case LineRole:
        return CallTexts::line(*m_log, *call);
    case FailedRole:
        return hasFailed(*call);
    default:
        return {};
    }
}

QVariant CallLogModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    switch (section) {
    case Time:
        return tr("Time");
    case Service:
        return tr("Service");
    case Method:
        return tr("Method");
    case Arguments:
        return tr("Arguments");
    case Reply:
        return tr("Reply");
    default:
        return tr("ms");
    }
}

} // namespace EmulationManagement::Internal
