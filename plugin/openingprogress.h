#pragma once

#include <QFutureWatcher>
#include <QObject>
#include <QPointer>
#include <QTimer>

#include <chrono>
#include <memory>

QT_BEGIN_NAMESPACE
template<typename T>
class QPromise;
QT_END_NAMESPACE

namespace Core {
class FutureProgress;
}

namespace EmulationManagement::Internal {

/*!
 * Shows in the IDE's progress indicator that the tool window is being opened: from the user's
 * click until the emulator runs and its packages were found.
 *
 * The user can cancel it there, and it ends by itself after timeLimit.
 */
class OpeningProgress : public QObject
{
    Q_OBJECT

public:
    /// Long enough for a virtual machine that starts for the first time on a slow disk.
    static constexpr std::chrono::minutes timeLimit{5};

    explicit OpeningProgress(QObject *parent = nullptr);
    ~OpeningProgress() override;

    [[nodiscard]] bool isRunning() const;
    void start();
    /// Shows what the opening waits for. Ignored unless it runs.
    void setStep(const QString &text);
    /// Removes the indicator. Neither canceled() nor timedOut() follows.
    void finish();

Q_SIGNALS:
    /// The user cancelled it. It no longer runs.
    void canceled();
    /// timeLimit has passed. It no longer runs.
    void timedOut();

private:
    std::unique_ptr<QPromise<void>> m_promise; // null unless it runs
    QFutureWatcher<void> m_watcher;
    QPointer<Core::FutureProgress> m_indicator;
    QTimer m_timer;
};

} // namespace EmulationManagement::Internal
