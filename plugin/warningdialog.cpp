#include "warningdialog.h"

#include "messageboxbuttons.h"

#include <coreplugin/icore.h>

#include <QCheckBox>
#include <QQuickItem>
#include <QQuickWindow>
#include <QShortcut>

namespace EmulationManagement::Internal {

/// The window of the item in which the dialog was declared.
static QQuickWindow *windowOf(const WarningDialog &dialog)
{
    const auto *item = qobject_cast<QQuickItem *>(dialog.parent());
    return item ? item->window() : nullptr;
}

QString WarningDialog::text() const
{
    return m_text;
}

void WarningDialog::setText(const QString &text)
{
    m_text = text;
    Q_EMIT textChanged();
}

QMessageBox::StandardButtons WarningDialog::standardButtons() const
{
    return m_standardButtons;
}

void WarningDialog::setStandardButtons(QMessageBox::StandardButtons buttons)
{
    m_standardButtons = buttons;
    Q_EMIT standardButtonsChanged();
}

bool WarningDialog::withDoNotShowAgainCheckBox() const
{
    return m_withDoNotShowAgainCheckBox;
}

void WarningDialog::setWithDoNotShowAgainCheckBox(bool withCheckBox)
{
    m_withDoNotShowAgainCheckBox = withCheckBox;
    Q_EMIT withDoNotShowAgainCheckBoxChanged();
}

void WarningDialog::show()
{
    QMessageBox box(QMessageBox::Question, tr("Warning"), m_text, m_standardButtons,
                    Core::ICore::mainWindow(), Qt::Dialog | Qt::MSWindowsFixedSizeDialogHint);
    auto *doNotShowAgain = new QCheckBox(tr("Do not show again"));
    box.setCheckBox(doNotShowAgain);
    doNotShowAgain->setVisible(m_withDoNotShowAgainCheckBox);
    translateButtons(&box);
    // The box ignores the Escape key if it has no button for it. Closed so, it has no answer.
    if (!box.button(QMessageBox::Cancel))
        connect(new QShortcut(Qt::Key_Escape, &box), &QShortcut::activated, &box, &QDialog::reject);

    const int answer = box.exec();
    // The box raised the IDE above the asking window: bring that window back.
    if (QQuickWindow *window = windowOf(*this); window && window->isVisible()) {
        window->raise();
        window->requestActivate();
    }
    switch (answer) {
    case QMessageBox::Ok:
    case QMessageBox::Apply:
        Q_EMIT accepted(m_withDoNotShowAgainCheckBox && doNotShowAgain->isChecked());
        break;
    case QMessageBox::Cancel:
    case QMessageBox::Discard:
        Q_EMIT rejected();
        break;
    default:
        break;
    }
}

} // namespace EmulationManagement::Internal
