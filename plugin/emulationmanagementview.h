#pragma once

#include <QQuickView>

#include <atomic>

namespace EmulationManagement::Internal {

/*!
 * The tool window. Its size and position survive restarts of the IDE. It never opens larger than
 * the available area of the screen.
 */
class EmulationManagementView final : public QQuickView
{
    Q_OBJECT
    Q_PROPERTY(double frameCost READ frameCost)

public:
    EmulationManagementView();

    /// Milliseconds of processor time that it takes to draw the window: some tenths with a graphics
    /// processor, more than ten if a software takes its place.
    [[nodiscard]] double frameCost() const { return m_frameCost; }

    /// Shows the window, restores it if it is minimised, and gives it the focus. A maximised
    /// window stays maximised.
    void bringToFront();

protected:
    void hideEvent(QHideEvent *event) override;

private:
    void activateOnceFocusReturns();
    void restoreGeometry();
    void saveGeometry() const;
    void measureFrames();

    std::atomic<double> m_frameCost = 0; // is written by the thread that draws
};

} // namespace EmulationManagement::Internal
