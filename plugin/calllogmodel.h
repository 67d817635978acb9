#pragma once

#include <QAbstractTableModel>
#include <QTimer>

#include <chrono>

namespace EmulationManagement::Internal {

class CallLog;
struct LoggedCall;

/*!
 * The calls of the log, one a row.
 *
 * Follows the log in batches, and only while it is told to: thousands of calls a second must not
 * keep the IDE busy.
 */
class CallLogModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { Time, Service, Method, Arguments, Reply, Latency, ColumnCount };
    /// All texts of a call in one, which a filter looks at.
    static constexpr int LineRole = Qt::UserRole;
    /// Whether the call was refused, lost or dropped.
    static constexpr int FailedRole = Qt::UserRole + 1;
    static constexpr std::chrono::milliseconds batchInterval{50};
    static constexpr std::chrono::milliseconds batchIntervalOfRecording{500};

    /// \a log must outlive the model.
    explicit CallLogModel(CallLog *log, QObject *parent = nullptr);

    void setFollowing(bool following);
    /// Showing rows would delay the calls of a recording that plays, so they come in its gaps.
    void setRecordingPlays(bool plays);
    /// Uses a gap to show the rows that have waited for a batchInterval.
    void useGap();
    /// The call of a row, or null if the log no longer keeps it.
    [[nodiscard]] const LoggedCall *callAt(int row) const;

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role) const override;

Q_SIGNALS:
    /// The rows are those of the log again.
    void followed();

private:
    void schedule();
    void follow();
    void noteFinished(qint64 serial);

    CallLog *m_log;
    bool m_following = false;
    qint64 m_begin = 0; // serial numbers of the rows
    qint64 m_end = 0;
    qint64 m_firstChanged = 0; // none if it is not before m_lastChanged
    qint64 m_lastChanged = 0;
    QTimer m_timer;
};

} // namespace EmulationManagement::Internal
