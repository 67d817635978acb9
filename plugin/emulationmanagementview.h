#pragma once

#include <QQuickView>

namespace EmulationManagement::Internal {

/*!
 * The tool window. Its size and position survive restarts of the IDE. It never opens larger than
 * the available area of the screen.
 */
class EmulationManagementView final : public QQuickView
{
    Q_OBJECT

public:
    using QQuickView::QQuickView;

    /// Shows the window, restores it if it is minimised, and gives it the focus. A maximised
    /// window stays maximised.
    void bringToFront();

protected:
    void hideEvent(QHideEvent *event) override;

private:
    void activateOnceFocusReturns();
    void restoreGeometry();
    void saveGeometry() const;
};

} // namespace EmulationManagement::Internal
