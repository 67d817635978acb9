#pragma once

#include <QList>
#include <QString>

class QQuickItem;
class QQuickWindow;

/// Finds the visible items of a QML window and uses them with mouse and keyboard.
class WindowDriver
{
public:
    explicit WindowDriver(QQuickWindow *window);

    /// Finds the window with this title once it is shown.
    static WindowDriver waitForWindow(const QString &title);

    /// Finds the open file dialog, which has a window of its own.
    static WindowDriver waitForFileDialog();

    [[nodiscard]] QQuickWindow *window() const;

    /*!
     * The visible items of a QML or C++ class, for example "Slider" or "QQuickSlider", below
     * \a root or in the whole window, in the order of the sources.
     */
    [[nodiscard]] QList<QQuickItem *> items(const QString &className,
                                            QQuickItem *root = nullptr) const;
    /// Waits for the visible, enabled item of a class whose property has this value.
    [[nodiscard]] QQuickItem *item(const QString &className, const char *property,
                                   const QString &value) const;

    /// Clicks the button or check box with this text.
    void clickButton(const QString &text) const;
    void click(const QQuickItem *item) const;
    /// Opens a combo box and clicks the entry with this text.
    void choose(const QQuickItem *comboBox, const QString &text) const;
    /// Drags a slider's handle to a fraction of its way.
    void drag(const QQuickItem *slider, double fraction) const;
    /// Replaces a text field's text and presses Enter.
    void type(const QQuickItem *textField, const QString &text) const;

private:
    QQuickWindow *m_window;
};
