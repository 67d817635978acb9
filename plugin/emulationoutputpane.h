#pragma once

#include "calllogmodel.h"

#include <link/recordingplayer.h>

#include <coreplugin/ioutputpane.h>

#include <QPointer>
#include <QSortFilterProxyModel>
#include <QTimer>

#include <vector>

QT_BEGIN_NAMESPACE
class QToolButton;
class QTreeView;
QT_END_NAMESPACE

namespace Utils {
class ElidingLabel;
}

namespace EmulationManagement::Internal {

class MoveButton;
class PlaybackBar;
class PlayButton;
class RecordButton;
class RemoteDBusInvokerService;

/*!
 * The IDE's output pane "Emulation": the calls that were sent to the emulator, and their replies.
 *
 * It costs little until it is shown: only then it makes its table and follows the log.
 */
class EmulationOutputPane final : public Core::IOutputPane
{
    Q_OBJECT

public:
    /// \a log and \a link must outlive the pane.
    EmulationOutputPane(CallLog *log, RemoteDBusInvokerService *link, QObject *parent = nullptr);
    ~EmulationOutputPane() override;

    /// Logs and records something that is not sent over the link.
    void addCameraCall(const ServiceMethod &method, const QString &arguments);

    QWidget *outputWidget(QWidget *parent) override;
    QList<QWidget *> toolBarWidgets() const override;
    void clearContents() override;
    void visibilityChanged(bool visible) override;
    void setFocus() override;
    bool hasFocus() const override;
    bool canFocus() const override;
    bool canNavigate() const override;
    bool canNext() const override;
    bool canPrevious() const override;
    void goToNext() override;
    void goToPrev() override;

Q_SIGNALS:
    /// A recording is about to be played.
    void recordingRead(const EmulationManagement::Internal::Recording &recording);
    /// A recording plays or is paused, or it has ended. Emitted by other changes, too.
    void playingChanged(bool playing);
    /// See RecordingPlayer::cameraCallDue().
    void cameraCallDue(const EmulationManagement::Internal::RecordedCall &call);

private:
    void updateFilter() override;
    void filter();
    void createView();
    void showContextMenu(const QPoint &position);
    void showTotals();
    void zoom(int points);
    void setFontSize(int points);
    void fitColumns();
    bool eventFilter(QObject *watched, QEvent *event) override;

    void goToFailure(int direction);
    [[nodiscard]] bool hasFailures() const;
    /// The calls of the selected rows, in their order.
    [[nodiscard]] std::vector<LoggedCall> selectedCalls() const;
    [[nodiscard]] std::vector<LoggedCall> allCalls() const;
    void copy(const QStringList &lines);
    void copyText();
    void copyCsv();
    void copyCommands();
    void play(const Recording &recording);
    [[nodiscard]] QList<QWidget *> toolBarButtons() const;

    CallLog *m_log;
    RemoteDBusInvokerService *m_link;
    CallLogModel m_model;
    QSortFilterProxyModel m_filtered;
    QPointer<QWidget> m_widget;
    QPointer<QTreeView> m_view;
    QPointer<RecordButton> m_recordButton;
    QPointer<PlayButton> m_playButton;
    QPointer<QToolButton> m_saveButton;
    QPointer<MoveButton> m_moveButton;
    QPointer<PlaybackBar> m_playbackBar;
    QPointer<Utils::ElidingLabel> m_totals;
    QTimer m_totalsTimer;
    QTimer m_filterTimer;
    RecordingPlayer m_player;
    bool m_atEnd = true;
};

} // namespace EmulationManagement::Internal
