#pragma once

#include "calllogmodel.h"

#include <link/recordingplayer.h>
#include <link/recordingwriter.h>

#include <coreplugin/ioutputpane.h>

#include <QFutureWatcher>
#include <QPointer>
#include <QSortFilterProxyModel>
#include <QTimer>

#include <memory>

QT_BEGIN_NAMESPACE
class QToolButton;
class QTreeView;
QT_END_NAMESPACE

namespace Utils {
class ElidingLabel;
}

namespace EmulationManagement::Internal {

class PlaybackBar;
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
    /// A recording plays, or no longer does.
    void playingChanged(bool playing);
    /// See RecordingPlayer::cameraCallDue().
    void cameraCallDue(const EmulationManagement::Internal::RecordedCall &call);

private:
    void updateFilter() override;
    void createView();
    void showContextMenu(const QPoint &position);
    void showTotals();
    void zoom(int points);
    bool eventFilter(QObject *watched, QEvent *event) override;

    void goToFailure(int direction);
    [[nodiscard]] bool hasFailures() const;
    /// The calls of the selected rows, in their order.
    [[nodiscard]] QList<const LoggedCall *> selectedCalls() const;
    [[nodiscard]] QList<const LoggedCall *> allCalls() const;
    void copy(const QStringList &lines);
    void copyText();
    void copyCsv();
    void copyCommands();
    void saveRecording(const QList<const LoggedCall *> &calls);
    void toggleRecording(bool on);
    void askForFile(const QString &title, const std::function<void(const QString &)> &use);
    void stopRecording();
    void askForRecording();
    void playReading();
    void updateRecordButton();

    CallLog *m_log;
    RemoteDBusInvokerService *m_link;
    CallLogModel m_model;
    QSortFilterProxyModel m_filtered;
    QPointer<QWidget> m_widget;
    QPointer<QTreeView> m_view;
    QPointer<QToolButton> m_recordButton;
    QPointer<QToolButton> m_playButton;
    QPointer<QToolButton> m_saveButton;
    QPointer<PlaybackBar> m_playbackBar;
    QPointer<Utils::ElidingLabel> m_totals;
    QTimer m_totalsTimer;
    std::unique_ptr<RecordingWriter> m_writer; // while recording
    QString m_recordingPath;
    RecordingPlayer m_player;
    QFutureWatcher<Recording> m_reading;
    QString m_playingPath;
    bool m_atEnd = true;
};

} // namespace EmulationManagement::Internal
