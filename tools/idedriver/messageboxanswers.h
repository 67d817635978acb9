#pragma once

#include <QList>
#include <QMessageBox>
#include <QPointer>
#include <QTimer>

/// Answers the modal message boxes that open while it exists, and keeps their texts.
class MessageBoxAnswers : public QObject
{
public:
    struct Box
    {
        QString title;
        QString text;
        QString informativeText;
        QMessageBox::Icon icon;
        QMessageBox::StandardButtons buttons;
        QStringList buttonTexts;
        Qt::TextFormat textFormat;
        bool hasVisibleCheckBox;
    };

    /// Presses the Escape key if \a answer is NoButton.
    /// \a tick also ticks the check box of the boxes, visible or not.
    explicit MessageBoxAnswers(QMessageBox::StandardButton answer, bool tick = false);

    [[nodiscard]] const QList<Box> &boxes() const { return m_boxes; }
    /// Waits until a box has opened, and returns the first one.
    [[nodiscard]] Box waitForBox() const;
    [[nodiscard]] QStringList texts() const;

private:
    void answer();

    QMessageBox::StandardButton m_answer;
    bool m_tick;
    QTimer m_timer;
    QPointer<QMessageBox> m_last;
    QList<Box> m_boxes;
};
