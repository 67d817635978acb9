#include "emulationmanagementview.h"

#include <coreplugin/icore.h>

#include <utils/qtcsettings.h>

#include <QGuiApplication>
#include <QScreen>
#include <QTimer>
#include <QWidget>

#include <algorithm>
#include <ctime>
#include <memory>

using namespace std::chrono_literals;

namespace EmulationManagement::Internal {

static constexpr auto focusReturnTimeLimit = 500ms;
static constexpr char geometryKey[] = "emulationmanagement/window_geometry";
static constexpr char maximizedKey[] = "emulationmanagement/window_maximized";

/// The frame of the IDE's main window: this window will get the same one.
static QMargins expectedFrame()
{
    const QWindow *mainWindow = Core::ICore::mainWindow()->windowHandle();
    return mainWindow ? mainWindow->frameMargins() : QMargins();
}

EmulationManagementView::EmulationManagementView()
{
    measureFrames();
}

void EmulationManagementView::measureFrames()
{
    // Other threads add to the processor time of a frame, so lower values are better ones.
    static constexpr double growth = 1.2;
    const auto now = [] { return 1000.0 * double(std::clock()) / CLOCKS_PER_SEC; };
    const auto start = std::make_shared<double>();
    connect(
        this, &QQuickWindow::beforeRendering, this, [start, now] { *start = now(); },
        Qt::DirectConnection);
    connect(
        this, &QQuickWindow::afterFrameEnd, this,
        [this, start, now] {
            const double cost = now() - *start;
            m_frameCost = m_frameCost > 0 ? std::min(cost, growth * m_frameCost) : cost;
        },
        Qt::DirectConnection);
}

void EmulationManagementView::bringToFront()
{
    if (!isVisible()) {
        restoreGeometry();
        // setVisible() keeps a maximised window maximised; QWindow::show() does not.
        setVisible(true);
    } else if (windowStates() & Qt::WindowMinimized) {
        setWindowStates(windowStates() & ~Qt::WindowMinimized);
    }
    raise();
    requestActivate();
    if (!QGuiApplication::focusWindow())
        activateOnceFocusReturns();
}

// A Wayland compositor raises a window only for the window that has the focus. While a menu closes,
// no window has it until the compositor returns it to the IDE.
void EmulationManagementView::activateOnceFocusReturns()
{
    auto *timeLimit = new QTimer(this);
    connect(timeLimit, &QTimer::timeout, timeLimit, &QObject::deleteLater);
    connect(
        qGuiApp, &QGuiApplication::focusWindowChanged, timeLimit, [this] { requestActivate(); },
        Qt::SingleShotConnection);
    timeLimit->start(focusReturnTimeLimit);
}

void EmulationManagementView::hideEvent(QHideEvent *event)
{
    saveGeometry();
    QQuickView::hideEvent(event);
}

void EmulationManagementView::restoreGeometry()
{
    const Utils::QtcSettings *settings = Core::ICore::settings();
    const QRect saved = settings->value(geometryKey).toRect();
    const QScreen *savedScreen = QGuiApplication::screenAt(saved.center());
    const QRect available
        = (savedScreen ? savedScreen : screen())->availableGeometry() - expectedFrame();
    if (saved.isValid() && savedScreen) {
        QRect geometry(saved.topLeft(), saved.size().boundedTo(available.size()));
        geometry.moveLeft(std::clamp(geometry.left(), available.left(),
                                     available.right() + 1 - geometry.width()));
        geometry.moveTop(std::clamp(geometry.top(), available.top(),
                                    available.bottom() + 1 - geometry.height()));
        setGeometry(geometry);
    } else {
        // The window manager chooses the position.
        resize(size().boundedTo(available.size()));
    }
    if (settings->value(maximizedKey).toBool())
        setWindowStates(Qt::WindowMaximized);
}

void EmulationManagementView::saveGeometry() const
{
    Utils::QtcSettings *settings = Core::ICore::settings();
    const bool isMaximized = windowStates() & Qt::WindowMaximized;
    settings->setValueWithDefault(maximizedKey, isMaximized, false);
    // A maximised window does not know its normal size: keep the saved one.
    if (!isMaximized && settings->value(geometryKey).toRect() != geometry())
        settings->setValue(geometryKey, geometry());
}

} // namespace EmulationManagement::Internal
