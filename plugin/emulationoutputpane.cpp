#include "emulationoutputpane.h"

#include "movebutton.h"
#include "playbackbar.h"
#include "playbutton.h"
#include "recordbutton.h"
#include "recordingfiles.h"

#include <coreplugin/actionmanager/actionmanager.h>
#include <coreplugin/actionmanager/command.h>
#include <coreplugin/coreconstants.h>
#include <coreplugin/icontext.h>

#include <link/calllog.h>
#include <link/calltexts.h>

#include <utils/elidinglabel.h>
#include <utils/itemviews.h>
#include <utils/utilsicons.h>

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QMenu>
#include <QRegularExpression>
#include <QScrollBar>
#include <QToolButton>
#include <QVBoxLayout>
#include <QWheelEvent>

#include <algorithm>
#include <chrono>

using namespace Qt::StringLiterals;

namespace EmulationManagement::Internal {

constexpr char paneId[] = "EmulationManagement.OutputPane";
constexpr char filterHistoryKey[] = "EmulationManagement.OutputPane.Filter";
static constexpr int priority = -30; // a higher one would move the shortcuts of other panes
static constexpr std::chrono::milliseconds totalsInterval{500};

EmulationOutputPane::EmulationOutputPane(CallLog *log, RemoteDBusInvokerService *link,
                                         QObject *parent)
    : IOutputPane(parent)
    , m_log(log)
    , m_link(link)
    , m_model(log)
    , m_player(link)
{
    setId(paneId);
    setDisplayName(tr("Emulation"));
    setPriorityInStatusBar(priority);
    setupFilterUi(filterHistoryKey, "EmulationManagement::Internal::EmulationOutputPane");
    setFilteringEnabled(true);
    setZoomButtonsEnabled(true);
    m_filtered.setSourceModel(&m_model);
    m_filtered.setFilterRole(CallLogModel::LineRole);
    m_filtered.setFilterKeyColumn(0);
    connect(this, &IOutputPane::zoomInRequested, this, [this](int range) { zoom(range); });
    connect(this, &IOutputPane::zoomOutRequested, this, [this](int range) { zoom(-range); });
    connect(this, &IOutputPane::resetZoomRequested, this,
            [this] { setFontSize(QApplication::font(m_view).pointSize()); });
    connect(&m_totalsTimer, &QTimer::timeout, this, &EmulationOutputPane::showTotals);
    m_filterTimer.setSingleShot(true);
    connect(&m_filterTimer, &QTimer::timeout, this, &EmulationOutputPane::filter);

    m_recordButton = new RecordButton(link);
    m_saveButton = new QToolButton;
    m_saveButton->setIcon(Utils::Icons::SAVEFILE_TOOLBAR.icon());
    m_saveButton->setToolTip(tr("Save What the Log Holds as a Recording…"));
    m_saveButton->setAccessibleName(m_saveButton->toolTip());
    connect(m_saveButton, &QToolButton::clicked, this,
            [this] { RecordingFiles::save(this, allCalls(), *m_log); });
    m_playButton = new PlayButton;
    connect(m_playButton, &PlayButton::recordingRead, this, &EmulationOutputPane::play);
    m_moveButton = new MoveButton;
    connect(&m_player, &RecordingPlayer::cameraCallDue, this, &EmulationOutputPane::cameraCallDue);
    connect(&m_player, &RecordingPlayer::gapBegan, &m_model, &CallLogModel::useGap);
    connect(&m_player, &RecordingPlayer::stateChanged, this, [this] {
        using State = RecordingPlayer::State;
        m_model.setRecordingPlays(m_player.state() == State::Playing);
        Q_EMIT playingChanged(m_player.state() != State::Stopped);
    });
}

EmulationOutputPane::~EmulationOutputPane()
{
    delete m_widget;
    qDeleteAll(toolBarButtons());
}

void EmulationOutputPane::addCameraCall(const ServiceMethod &method, const QString &arguments)
{
    m_log->add(method, arguments);
    if (m_recordButton)
        m_recordButton->addCameraCall(method, arguments);
}

QWidget *EmulationOutputPane::outputWidget(QWidget *parent)
{
    if (!m_widget) {
        m_widget = new QWidget(parent);
        auto *layout = new QVBoxLayout(m_widget);
        layout->setContentsMargins({});
        layout->setSpacing(0);
        setupContext(paneId, m_widget);
    }
    return m_widget;
}

QList<QWidget *> EmulationOutputPane::toolBarButtons() const
{
    return {m_recordButton, m_playButton, m_saveButton, m_moveButton};
}

QList<QWidget *> EmulationOutputPane::toolBarWidgets() const
{
    return toolBarButtons() + IOutputPane::toolBarWidgets();
}

void EmulationOutputPane::createView()
{
    auto *view = new Utils::TreeView;
    m_view = view;
    view->setModel(&m_filtered);
    view->setRootIsDecorated(false);
    view->setUniformRowHeights(true); // the view would measure each row
    view->setAlternatingRowColors(true);
    view->setSelectionMode(QAbstractItemView::ExtendedSelection);
    view->setFrameStyle(QFrame::NoFrame);
    view->setContextMenuPolicy(Qt::CustomContextMenu);
    view->setAccessibleName(tr("Calls of the emulator"));
    view->header()->setStretchLastSection(false);
    view->header()->setSectionResizeMode(CallLogModel::Arguments, QHeaderView::Stretch);
    view->header()->setSectionResizeMode(CallLogModel::Reply, QHeaderView::Stretch);
    fitColumns();
    m_widget->layout()->addWidget(view);
    m_playbackBar = new PlaybackBar(&m_player, m_link, m_log);
    m_playbackBar->hide();
    connect(m_playbackBar, &PlaybackBar::closed, this, [this] { m_playbackBar->hide(); });
    m_widget->layout()->addWidget(m_playbackBar);
    m_totals = new Utils::ElidingLabel;
    m_totals->setContentsMargins(6, 2, 6, 2);
    m_widget->layout()->addWidget(m_totals);
    m_widget->setFocusProxy(view);
    view->viewport()->installEventFilter(this);

    // Follows new rows, and a new height, only while the user looks at the end.
    QScrollBar *bar = view->verticalScrollBar();
    connect(bar, &QScrollBar::valueChanged, this,
            [this, bar](int value) { m_atEnd = value == bar->maximum(); });
    connect(bar, &QScrollBar::rangeChanged, this, [this, bar](int, int maximum) {
        if (m_atEnd)
            bar->setValue(maximum);
    });
    connect(&m_model, &CallLogModel::followed, this, &IOutputPane::navigateStateChanged);
    connect(view, &QWidget::customContextMenuRequested, this,
            &EmulationOutputPane::showContextMenu);
    auto *copyAction = new QAction(view);
    Core::ActionManager::registerAction(copyAction, Core::Constants::COPY, Core::Context(paneId));
    connect(copyAction, &QAction::triggered, this, &EmulationOutputPane::copyText);
}

// The arguments and the replies share the rest of the width.
void EmulationOutputPane::fitColumns()
{
    const auto width = [this](const QString &text) {
        return m_view->fontMetrics().horizontalAdvance(text) + 24;
    };
    QHeaderView *header = m_view->header();
    header->setMinimumSectionSize(width(u"1000.00"_s));
    header->resizeSection(CallLogModel::Time, width(u"00:00:00.000"_s));
    header->resizeSection(CallLogModel::Service, width(u"location"_s));
    header->resizeSection(CallLogModel::Method, width(u"setMagnetometerCalibrationLevel"_s));
    header->resizeSection(CallLogModel::Latency, header->minimumSectionSize());
}

bool EmulationOutputPane::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Wheel) {
        const auto *wheel = static_cast<QWheelEvent *>(event);
        const int delta = wheel->angleDelta().y();
        if (wheel->modifiers() & Qt::ControlModifier && delta != 0) {
            zoom(delta > 0 ? 1 : -1);
            return true;
        }
    }
    return IOutputPane::eventFilter(watched, event);
}

void EmulationOutputPane::zoom(int points)
{
    if (m_view)
        setFontSize(m_view->font().pointSize() + points);
}

void EmulationOutputPane::setFontSize(int points)
{
    static constexpr int smallest = 4;
    static constexpr int largest = 40;
    if (!m_view)
        return;
    QFont font = m_view->font();
    font.setPointSize(std::clamp(points, smallest, largest));
    m_view->setFont(font);
    fitColumns();
}

void EmulationOutputPane::clearContents()
{
    m_log->clear();
    showTotals();
    navigateStateChanged();
}

void EmulationOutputPane::visibilityChanged(bool visible)
{
    if (visible && !m_view && m_widget)
        createView();
    m_model.setFollowing(visible);
    if (!visible) {
        m_totalsTimer.stop();
        return;
    }
    showTotals();
    m_totalsTimer.start(totalsInterval);
}

void EmulationOutputPane::showTotals()
{
    if (!m_totals)
        return;
    const CallLog::Totals &totals = m_log->totals();
    const CallLog::Latencies latencies = m_log->latencies();
    m_totals->setText(
        tr("%L1 calls, %L2 refused, %L3 lost, %L4 not sent; %L5/s; median %L6 ms, 99 % %L7 ms")
            .arg(totals.calls)
            .arg(totals.refused)
            .arg(totals.lost)
            .arg(totals.dropped)
            .arg(m_log->callsPerSecond())
            .arg(latencies.median.count(), 0, 'f', 1)
            .arg(latencies.percentile99.count(), 0, 'f', 1));
}

void EmulationOutputPane::setFocus()
{
    if (m_view)
        m_view->setFocus();
}

bool EmulationOutputPane::hasFocus() const
{
    return m_view && m_view->hasFocus();
}

bool EmulationOutputPane::canFocus() const
{
    return true;
}

bool EmulationOutputPane::canNavigate() const
{
    return true;
}

bool EmulationOutputPane::hasFailures() const
{
    const CallLog::Totals &totals = m_log->totals();
    return totals.refused + totals.lost + totals.dropped > 0;
}

bool EmulationOutputPane::canNext() const
{
    return hasFailures();
}

bool EmulationOutputPane::canPrevious() const
{
    return hasFailures();
}

void EmulationOutputPane::goToNext()
{
    goToFailure(1);
}

void EmulationOutputPane::goToPrev()
{
    goToFailure(-1);
}

// Goes to the next call that failed, and from the last one to the first.
void EmulationOutputPane::goToFailure(int direction)
{
    const int rows = m_filtered.rowCount();
    if (!m_view || rows == 0)
        return;
    const int start = m_view->currentIndex().isValid() ? m_view->currentIndex().row()
                      : direction > 0                  ? -1
                                                       : 0;
    for (int i = 1; i <= rows; ++i) {
        const int row = ((start + direction * i) % rows + rows) % rows;
        const QModelIndex index = m_filtered.index(row, 0);
        if (!index.data(CallLogModel::FailedRole).toBool())
            continue;
        m_view->setCurrentIndex(index);
        m_view->scrollTo(index);
        return;
    }
}

// Filtering 100,000 lines takes longer than typing a letter.
void EmulationOutputPane::updateFilter()
{
    static constexpr std::chrono::milliseconds pause{200};
    m_filterTimer.start(pause);
}

void EmulationOutputPane::filter()
{
    const QString text
        = filterUsesRegexp() ? filterText() : QRegularExpression::escape(filterText());
    // The expression consumes nothing, so it can say that there is no match.
    const QString pattern
        = filterIsInverted() && !text.isEmpty() ? u"\\A(?!.*(?:%1))"_s.arg(text) : text;
    QRegularExpression::PatternOptions options = QRegularExpression::DotMatchesEverythingOption;
    if (filterCaseSensitivity() == Qt::CaseInsensitive)
        options |= QRegularExpression::CaseInsensitiveOption;
    const QRegularExpression expression(pattern, options);
    if (expression.isValid()) // while an expression is typed, the last valid one stays
        m_filtered.setFilterRegularExpression(expression);
}

std::vector<LoggedCall> EmulationOutputPane::selectedCalls() const
{
    QList<int> rows;
    const QModelIndexList selection = m_view->selectionModel()->selectedRows();
    for (const QModelIndex &index : selection)
        rows.append(m_filtered.mapToSource(index).row());
    std::ranges::sort(rows);
    std::vector<LoggedCall> calls;
    for (const int row : std::as_const(rows)) {
        if (const LoggedCall *call = m_model.callAt(row))
            calls.push_back(*call);
    }
    return calls;
}

std::vector<LoggedCall> EmulationOutputPane::allCalls() const
{
    std::vector<LoggedCall> calls;
    for (qint64 serial = m_log->begin(); serial < m_log->end(); ++serial)
        calls.push_back(m_log->at(serial));
    return calls;
}

void EmulationOutputPane::copy(const QStringList &lines)
{
    if (!lines.isEmpty())
        QApplication::clipboard()->setText(lines.join(u'\n') + u'\n');
}

void EmulationOutputPane::copyText()
{
    QStringList lines;
    for (const LoggedCall &call : selectedCalls())
        lines.append(CallTexts::line(*m_log, call));
    copy(lines);
}

void EmulationOutputPane::copyCsv()
{
    QStringList lines{CallTexts::csvHeader()};
    for (const LoggedCall &call : selectedCalls())
        lines.append(CallTexts::csvLine(*m_log, call));
    copy(lines);
}

void EmulationOutputPane::copyCommands()
{
    QStringList lines;
    for (const LoggedCall &call : selectedCalls())
        lines.append(CallTexts::command(call));
    lines.removeAll({});
    copy(lines);
}

void EmulationOutputPane::showContextMenu(const QPoint &position)
{
    QMenu menu;
    const bool hasSelection = m_view->selectionModel()->hasSelection();
    const auto add = [&](const QString &text, auto action) {
        menu.addAction(text, this, action)->setEnabled(hasSelection);
    };
    add(tr("Copy"), &EmulationOutputPane::copyText);
    add(tr("Copy as CSV"), &EmulationOutputPane::copyCsv);
    add(tr("Copy as emulationctl Commands"), &EmulationOutputPane::copyCommands);
    menu.addSeparator();
    add(tr("Save Selection as a Recording…"),
        [this] { RecordingFiles::save(this, selectedCalls(), *m_log); });
    menu.addSeparator();
    menu.addAction(tr("Select All"), m_view.data(), &QAbstractItemView::selectAll);
    menu.exec(m_view->viewport()->mapToGlobal(position));
}

void EmulationOutputPane::play(const Recording &recording)
{
    Q_EMIT recordingRead(recording);
    m_player.setRecording(recording);
    popup(IOutputPane::NoModeSwitch);
    m_playbackBar->show();
    m_playbackBar->play();
}

} // namespace EmulationManagement::Internal
