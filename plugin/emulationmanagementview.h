#pragma once

#include <QQuickView>

namespace EmulationManagement::Internal {

/*!
 * The tool window. It remembers its size and place, also over restarts of the IDE, and never opens
 * larger than the free area of the screen.
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
    void restoreGeometry();
    void saveGeometry() const;
};

} // namespace EmulationManagement::Internal
