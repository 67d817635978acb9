#include "openingprogress.h"

#include <coreplugin/progressmanager/futureprogress.h>
#include <coreplugin/progressmanager/progressmanager.h>

#include <QPromise>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace EmulationManagement::Internal {

static constexpr char taskType[] = "EmulationManagement.Opening";
// How long an emulator usually takes to start. The indicator is nearly full after this time.
static constexpr std::chrono::seconds usualDuration = 20s;

OpeningProgress::OpeningProgress(QObject *parent)
    : QObject(parent)
    , m_timer(this)
{
    m_timer.setObjectName(u"openingTimeLimit"_s);
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, [this] {
        finish();
        Q_EMIT timedOut();
    });
    connect(&m_watcher, &QFutureWatcher<void>::canceled, this, [this] {
        if (!isRunning())
            return;
        finish();
        Q_EMIT canceled();
    });
}

OpeningProgress::~OpeningProgress()
{
    finish();
}

bool OpeningProgress::isRunning() const
{
    return m_promise != nullptr;
}

void OpeningProgress::start()
{
    m_promise = std::make_unique<QPromise<void>>();
    m_promise->start();
    m_watcher.setFuture(m_promise->future());
    m_indicator = Core::ProgressManager::addTimedTask(
        m_promise->future(), tr("Opening Emulation Management"), taskType, usualDuration);
    m_indicator->setSubtitleVisibleInStatusBar(true);
    m_timer.start(timeLimit);
}

void OpeningProgress::setStep(const QString &text)
{
    if (isRunning() && m_indicator)
        m_indicator->setSubtitle(text);
}

void OpeningProgress::finish()
{
    if (!isRunning())
        return;
    m_timer.stop();
    m_promise->finish();
    m_promise.reset();
}

} // namespace EmulationManagement::Internal
